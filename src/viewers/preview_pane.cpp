#include "viewers/preview_pane.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

#include "viewers/print_pages.h"
#include "viewers/qt_text.h"
#include "viewers/ve_view.h"

namespace folioscope {

namespace {

constexpr int kSyncAfter = 1000;  // milliseconds
constexpr int kZoomStep = 10;     // percent, for a notch of the wheel
constexpr int kError = 3;         // severity

class Flag {
public:
    explicit Flag(bool& flag) : flag_(flag) { flag_ = true; }
    Flag(const Flag&) = delete;
    Flag& operator=(const Flag&) = delete;
    ~Flag() { flag_ = false; }

private:
    bool& flag_;
};

// The dialog offers the current folder for a file.
class CurrentFolder {
public:
    explicit CurrentFolder(const QString& path) : before_(QDir::currentPath()) { QDir::setCurrent(path); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { QDir::setCurrent(before_); }

private:
    QString before_;
};

bool ShowPrintDialog(QPrinter& printer, int maxPage, QWidget* parent)
{
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setMinMax(1, maxPage);
    dialog.setFromTo(printer.fromPage(), printer.toPage());
    dialog.setPrintRange(QAbstractPrintDialog::PageRange);
    return dialog.exec() == QDialog::Accepted;
}

// Those of the document that the dialog has been told, which may be several stretches; all if there is no range.
QPageRanges ChosenPages(const QPrinter& printer, int maxPage)
{
    QPageRanges pages;
    if (printer.printRange() != QPrinter::PageRange || printer.pageRanges().isEmpty()) {
        pages.addRange(1, maxPage);
        return pages;
    }
    for (const QPageRanges::Range& range : printer.pageRanges().toRangeList())
        if (range.from <= maxPage) pages.addRange(std::max(range.from, 1), std::min(range.to, maxPage));
    return pages;
}

}  // namespace

struct PreviewPane::Listener final : VEViewListener {
    explicit Listener(PreviewPane& owner) : pane(owner) {}
    void CurrentPageNumberChanged() override { pane.viewListener_CurrentPageNumberChanged(); }
    void MorePagesKnown() override { pane.view_->PagesGrew(); }
    PreviewPane& pane;
};

PreviewPane::PreviewPane(QWidget* parent)
    : QFrame(parent), choosePrinter(ShowPrintDialog), view_(new VEView(this)), ViewTimer_(new QTimer(this)),
      viewListener_(std::make_unique<Listener>(*this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setFocusProxy(view_);
    ViewTimer_->setObjectName(QStringLiteral("ViewTimer"));
    ViewTimer_->setTimerType(Qt::PreciseTimer);
    ViewTimer_->setInterval(kSyncAfter);
    connect(ViewTimer_, &QTimer::timeout, this, &PreviewPane::ViewTimer_Timer);
    connect(view_, &VEView::EngineFailed, this, &PreviewPane::Failed);
    connect(view_, &VEView::ZoomStepWanted, this, &PreviewPane::ZoomFromView);
}

PreviewPane::~PreviewPane() { view_->Attach(nullptr, nullptr); }

void PreviewPane::SetTexts(const Labels& texts)
{
    texts_ = texts;
    view_->SetTexts(texts);
}

void PreviewPane::SetEngine(PreviewEngine* engine, IVEDisplayMachineCallback* callback, const QString& program)
{
    engine_ = engine;
    callback_ = callback;
    program_ = program;
}

bool PreviewPane::Open(const QString& path, bool autoRotation)
{
    if (document_) return true;
    path_ = path;
    try {
        if (engine_ != nullptr) document_ = engine_->OpenDocument(path, autoRotation, *viewListener_);
    } catch (...) {  // told below
    }
    if (!document_) {
        view_->ShowFailure();
        Q_EMIT Failed();
        return false;
    }
    view_->Attach(document_.get(), viewListener_.get());
    view_->SetFitMode(kFitWholePage);
    view_->SetShowOptions(true, true);
    view_->SetMode(1);
    return true;
}

void PreviewPane::TurnToPageOf(std::uint32_t node, const std::deque<std::uint32_t>& lngPageEnds)
{
    if (!document_ || !isVisibleTo(window()) || lngPageEnds.empty() || bolPageFromView_) return;
    // The entries ascend, so those below the node are the first ones. Behind the last page's end nothing is turned.
    const auto behind = std::lower_bound(lngPageEnds.begin(), lngPageEnds.end(), node);
    if (behind == lngPageEnds.end()) return;
    const int page = static_cast<int>(behind - lngPageEnds.begin()) + 1;
    treePage_ = 0;
    if (view_->CurrentPage() == page) return;
    const Flag pageFromTree(bolPageFromTree_);
    view_->GoToPage(page);
    if (view_->CurrentPage() != page) treePage_ = page;
}

void PreviewPane::viewListener_CurrentPageNumberChanged()
{
    // A page that the tree has wanted before it was known comes late.
    const bool wantedByTree = bolPageFromTree_ || (treePage_ != 0 && view_->CurrentPage() == treePage_);
    treePage_ = 0;
    if (wantedByTree || (isSearchTermEmpty && !isSearchTermEmpty())) return;
    ViewTimer_->stop();
    ViewTimer_->start();
}

void PreviewPane::ViewTimer_Timer()
{
    ViewTimer_->stop();
    const auto* const lngPageEnds = pageEnds ? pageEnds() : nullptr;
    const int page = view_->CurrentPage();
    if (lngPageEnds == nullptr || page < 1 || static_cast<std::size_t>(page) > lngPageEnds->size()) return;
    const Flag pageFromView(bolPageFromView_);
    Q_EMIT PageEndWanted((*lngPageEnds)[static_cast<std::size_t>(page) - 1]);
}

void PreviewPane::FitToSize(int intSizeWidth)
{
    if (intSizeWidth == 1) view_->SetFitMode(kFitWholePage);
    if (intSizeWidth == 2) view_->SetFitMode(kFitPageWidth);
}

void PreviewPane::ViewRotate(int intDegrees)
{
    const int rotation = view_->Rotation();
    if (rotation == 3 && intDegrees == 1)
        view_->SetRotation(0);
    else if (rotation == 0 && intDegrees == -1)
        view_->SetRotation(3);
    else
        view_->SetRotation(rotation + intDegrees);
}

void PreviewPane::ViewZoomLevel(int intZoomChange)
{
    const std::int64_t sum = std::int64_t{PreviewZoom_} + intZoomChange;
    if (sum < 1 || sum >= 3001) return;
    PreviewZoom_ = static_cast<std::int16_t>(sum);
    view_->SetZoom(PreviewZoom_);
}

void PreviewPane::ViewZoom100()
{
    PreviewZoom_ = 100;
    view_->SetZoom(100);
}

// The wheel goes on from what is seen, also where the page has been fitted.
void PreviewPane::ZoomFromView(int steps)
{
    if (view_->FitMode() != kFitNone)
        PreviewZoom_ = static_cast<std::int16_t>(std::clamp(std::lround(view_->Zoom()), 1L, 3000L));
    const int wanted = PreviewZoom_ + kZoomStep * steps;
    ViewZoomLevel(std::clamp(wanted, 1, static_cast<int>(kLargestZoom)) - PreviewZoom_);
}

void PreviewPane::ViewPrint()
{
    if (!document_) return;
    try {
        Print();
    } catch (...) {
        Q_EMIT Failed();
    }
}

void PreviewPane::Print()
{
    document_->FindAllPages();
    const int maxPage = document_->PageCount();
    if (maxPage < 1) return;
    QPrinter printer(QPrinter::HighResolution);
    const int page = std::max(view_->CurrentPage(), 1);
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(page, page);
    {
        const CurrentFolder beside(QFileInfo(path_).absolutePath());
        if (!choosePrinter(printer, maxPage, this)) return;
    }
    const PrintJob job = {*engine_, *document_, program_, ChosenPages(printer, maxPage)};
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const struct CursorBack {
        ~CursorBack() { QApplication::restoreOverrideCursor(); }
    } cursorBack;
    if (PrintPages(printer, job) == PrintResult::PrinterFailed)
        TellPrinterFailure(printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName());
}

void PreviewPane::TellPrinterFailure(const QString& printer)
{
    if (callback_ == nullptr) return;
    const QString text = ToQt(texts_, U("The pages could not be printed: %1 accepts no print job. Check that it is "
                                        "ready, or choose another printer."));
    callback_->IVEDisplayMachineCallback_LogMessage(QStringLiteral("PreviewPane"), 0, kError,
                                                    QString(text).replace(QStringLiteral("%1"), printer));
}

}  // namespace folioscope

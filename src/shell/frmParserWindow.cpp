#include "shell/frmParserWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

#include <cstdio>

#include "base/text.h"
#include "shell/divider.h"
#include "shell/fly_tree.h"
#include "shell/icons.h"
#include "shell/property_pane.h"
#include "viewers/hex_pane.h"
#include "viewers/preview_pane.h"
#include "viewers/qt_text.h"
#include "viewers/ve_view.h"

namespace folioscope {

namespace {

constexpr int kSmallest = 601;  // pixels: narrower ones are refused
constexpr int kShowEvery = 50;  // milliseconds between two looks at what an operation has done

template <class Control> Control* Named(Control* control, const char* name)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

}  // namespace

frmParserWindow::frmParserWindow(ShellState& state, QWidget* parent)
    : QWidget(parent), state_(state), analysisTexts_(state.settings.AnalysisLanguage()),
      flyTreeStructure_(Named(new FlyTree(this), "flyTreeStructure")),
      txtProperties_(Named(new PropertyPane(state.InterfaceTexts(), this), "txtProperties")),
      imgDivider_(Named(new Divider(Qt::Horizontal, this), "imgDivider")),
      imgDivider2_(Named(new Divider(Qt::Horizontal, this), "imgDivider2")),
      imgDivider3_(Named(new Divider(Qt::Vertical, this), "imgDivider3")),
      picViewFrame_(Named(new PreviewPane(this), "picViewFrame")),
      picHex_(Named(new HexPane(state.settings.Codepage, state.InterfaceTexts(), this), "picHex")),
      picStatusBar_(MakeStatusBar())
{
    setMinimumWidth(kSmallest);
    picViewFrame_->hide();
    imgDivider2_->hide();
    picHex_->setVisible(state.settings.HexViewer == 1);
    imgDivider3_->setVisible(state.settings.HexViewer == 1);
    flyTreeStructure_->SetIcons(TreeIcon);
    flyTreeStructure_->SetItemSeparator("^");
    connect(flyTreeStructure_, &FlyTree::OnSelChange, this, &frmParserWindow::flyTreeStructure_OnSelChange);
    connect(txtProperties_, &PropertyPane::FilesDropped, this, &frmParserWindow::FilesDropped);
    connect(txtProperties_, &PropertyPane::LinkNotOpened, this, &frmParserWindow::LinkNotOpened);
    connect(picViewFrame_, &PreviewPane::PageEndWanted, this, &frmParserWindow::SelectPageEnd);
    connect(picViewFrame_, &PreviewPane::Failed, this, &frmParserWindow::TellOfViewer);
    picViewFrame_->pageEnds = [this] { return document_ ? &document_->Tree().PageEnds() : nullptr; };
    picViewFrame_->isSearchTermEmpty = [this] { return state_.find.strSearch.empty(); };
    connect(cmdCancel_, &QPushButton::clicked, this, &frmParserWindow::cmdCancel_Click);
    connect(imgDivider_, &Divider::Dragged, this, &frmParserWindow::DragTreeDivider);
    connect(imgDivider2_, &Divider::Dragged, this, &frmParserWindow::DragPreviewDivider);
    connect(imgDivider3_, &Divider::Dragged, this, &frmParserWindow::DragHexDivider);
    SetTexts();
}

frmParserWindow::~frmParserWindow() { flyTreeStructure_->Clear(); }

QWidget* frmParserWindow::MakeStatusBar()
{
    auto* const bar = Named(new QWidget(this), "picStatusBar");
    pgbProgress_ = Named(new QProgressBar(bar), "pgbProgress");
    cmdCancel_ = Named(new QPushButton(bar), "cmdCancel");
    lblPageCount_ = Named(new QLabel(bar), "lblPageCount");
    lblSFCount_ = Named(new QLabel(bar), "lblSFCount");
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(6, 2, 6, 2);
    row->addWidget(pgbProgress_, 1);
    row->addWidget(cmdCancel_);
    row->addStretch(1);
    row->addWidget(lblPageCount_);
    row->addSpacing(12);
    row->addWidget(lblSFCount_);
    pgbProgress_->setTextVisible(false);
    pgbProgress_->hide();
    // The bar keeps its height when an operation begins or ends.
    QSizePolicy kept = cmdCancel_->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    cmdCancel_->setSizePolicy(kept);
    cmdCancel_->hide();
    return bar;
}

void frmParserWindow::SetTexts()
{
    const Labels texts = state_.InterfaceTexts();
    txtProperties_->SetTexts(texts);
    picHex_->SetTexts(texts);
    picViewFrame_->SetTexts(texts);
    flyTreeStructure_->SetLabels(texts);
    cmdCancel_->setText(ToQt(texts, U("Cancel")));
    flyTreeStructure_->setAccessibleName(ToQt(texts, U("Structure")));
    txtProperties_->setAccessibleName(ToQt(texts, U("Properties")));
    pgbProgress_->setAccessibleName(ToQt(texts, U("Progress")));
    imgDivider_->setAccessibleName(ToQt(texts, U("Width of the structure")));
    imgDivider2_->setAccessibleName(ToQt(texts, U("Width of the preview")));
    imgDivider3_->setAccessibleName(ToQt(texts, U("Height of the hex viewer")));
    ShowCounters();
}

bool frmParserWindow::ProcessAFPFile(const QString& path)
{
    path_ = path;
    analysisTexts_ = AnalysingTexts(state_.settings.AnalysisLanguage());
    picHex_->SetFile(path);
    document_ =
        std::make_unique<Document>(state_.settings, state_.numbers, state_.messages, static_cast<RunHost&>(*this));
    flyTreeStructure_->SetTree(&document_->Tree());
    const bool walked = document_->ProcessAFPFile(path.toStdString());
    Q_EMIT StateChanged();
    const RunOutcome outcome = document_->Outcome();
    return walked || (outcome != RunOutcome::Missing && outcome != RunOutcome::TooBig);
}

bool frmParserWindow::MayClose()
{
    if (document_) document_->SetOperationInteruptedFlag(true);
    return !IsBusy();
}

void frmParserWindow::closeEvent(QCloseEvent* event) { event->setAccepted(MayClose()); }

void frmParserWindow::cmdCancel_Click()
{
    if (document_ && IsBusy()) document_->SetOperationInteruptedFlag(true);
}

// -------------------------------------------------------------------------------------------------------- operations

void frmParserWindow::OperationStarts(std::int64_t lngMaximum)
{
    ++busy_;
    for (progressShift_ = 0; lngMaximum >> progressShift_ > std::numeric_limits<int>::max();) ++progressShift_;
    progress_ = 0;
    pgbProgress_->setRange(0, static_cast<int>(lngMaximum >> progressShift_));
    pgbProgress_->setValue(0);
    pgbProgress_->show();
    cmdCancel_->show();
    shown_.start();
    Q_EMIT StateChanged();
}

void frmParserWindow::Progress(std::int64_t lngValue) { progress_ = lngValue; }

void frmParserWindow::Counters(std::int32_t lngSFCount, std::int32_t lngPageCount)
{
    lngSFCount_ = lngSFCount;
    lngPageCount_ = lngPageCount;
}

// What the operation has done so far is shown now and then: showing it each time would cost more than the operation.
void frmParserWindow::ShowProgress()
{
    if (!shown_.hasExpired(kShowEvery)) return;
    pgbProgress_->setValue(static_cast<int>(progress_ >> progressShift_));
    ShowCounters();
    flyTreeStructure_->Refresh();
    if (!rootOpened_ && document_->Tree().Nodes().Size() > 1) {
        rootOpened_ = true;  // once: the user may have closed it
        flyTreeStructure_->Expand(NodeStore::kRoot);
    }
    shown_.start();
}

void frmParserWindow::GiveWay()
{
    ShowProgress();
    QCoreApplication::processEvents();
}

void frmParserWindow::KeepAlive()
{
    ShowProgress();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmParserWindow::OperationEnds()
{
    --busy_;
    pgbProgress_->setValue(pgbProgress_->maximum());
    pgbProgress_->hide();
    cmdCancel_->hide();
    ShowCounters();
    flyTreeStructure_->Refresh();
    Q_EMIT StateChanged();
}

void frmParserWindow::RunFinished()
{
    rootOpened_ = true;
    ShowCounters();
    flyTreeStructure_->Refresh();
    flyTreeStructure_->Expand(NodeStore::kRoot);
    flyTreeStructure_->setFocus();
    SelectNode(NodeStore::kRoot);
}

void frmParserWindow::PreviewOffered()
{
    previewOffered_ = true;
    Q_EMIT StateChanged();
    if (state_.settings.UsePreviewWindow == 1 && !previewShown_) ShowPreview();
}

void frmParserWindow::TakeSettings()
{
    if (document_) document_->TakeSettings(state_.settings);
}

void frmParserWindow::ShowPreview()
{
    previewShown_ = !previewShown_;
    picViewFrame_->setVisible(previewShown_);
    imgDivider2_->setVisible(previewShown_);
    PlacePanes();
    if (previewShown_ && picViewFrame_->Open(path_, state_.settings.UseAutoRotation == 1) && document_)
        picViewFrame_->TurnToPageOf(flyTreeStructure_->Selected(), document_->Tree().PageEnds());
    Q_EMIT StateChanged();
}

void frmParserWindow::TellOfViewer()
{
    state_.messages.addMessage(MessageSource::General, MessageSeverity::Information,
                               state_.InterfaceTexts()[kViewerProblem], false);
}

// A dump that the command line has asked for is written without a user: what went well needs no answer, and what didn't
// is told on the terminal too.
void frmParserWindow::MessageBox(BoxIcon icon, std::string_view title, std::string_view text)
{
    if (state_.bolExtract) {
        if (icon == BoxIcon::Information) return;
        state_.extractFailed = true;
        std::fprintf(stderr, "fsv: %.*s\n", static_cast<int>(text.size()), text.data());
    }
    QMessageBox box(icon == BoxIcon::Stop ? QMessageBox::Critical : QMessageBox::Information, ToQt(title), ToQt(text),
                    QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void frmParserWindow::ShowCounters()
{
    std::string records, pages;
    AppendFormatted(records, std::int64_t{lngSFCount_}, Picture::Grouped, state_.numbers);
    AppendFormatted(pages, std::int64_t{lngPageCount_}, Picture::Grouped, state_.numbers);
    const std::string_view page = analysisTexts_[L("Page")];
    pages += ' ';
    pages += page.substr(0, Utf8Step(page.front()));
    lblSFCount_->setText(ToQt(records + " SF"));
    lblPageCount_->setText(ToQt(pages + '.'));
}

// ------------------------------------------------------------------------------------------------------------- nodes

void frmParserWindow::SelectNode(std::uint32_t node)
{
    flyTreeStructure_->Select(node);
    flyTreeStructure_OnSelChange(node);
}

void frmParserWindow::flyTreeStructure_OnSelChange(std::uint32_t node)
{
    if (!document_ || node == 0) {
        picHex_->ShowRecord(0, 0);
        return txtProperties_->ShowPropertyText("");
    }
    if (document_->GetNodeContents_bolUnread(node)) {
        auto failure = document_->RedirectOpenAFPFileRandom();
        if (!failure) failure = document_->LookupMissingData(node);
        document_->RedirectCloseAFPFile();
        if (failure) TellFailure(failure);
        flyTreeStructure_->Refresh();
    }
    ShowNode(node);
}

void frmParserWindow::ShowNode(std::uint32_t node)
{
    txtProperties_->ShowPropertyText(document_->GetNodeContents_strContent(node));
    picHex_->ShowRecord(document_->GetNodeContents_lngStart(node), document_->GetNodeContents_lngLength(node));
    if (previewShown_) picViewFrame_->TurnToPageOf(node, document_->Tree().PageEnds());
}

// The pages lead to the record that ends the one that is shown.
void frmParserWindow::SelectPageEnd(std::uint32_t node) { SelectNode(node); }

void frmParserWindow::TellFailure(const FileFailure& failure)
{
    const Labels texts = state_.InterfaceTexts();
    std::string text(texts[U("File %1 could not be opened! Following error occured: NEWLINE %2, %3")]);
    ChangeString(text, "%1", path_.toStdString());
    ChangeString(text, "%2", std::to_string(failure.number));
    ChangeString(text, "%3", failure.description);
    ChangeString(text, " NEWLINE ", "\r");
    MessageBox(BoxIcon::Stop, "Stop", text);
}

void frmParserWindow::SaveDump(const QString& name)
{
    document_->SetOperationInteruptedFlag(false);
    document_->SaveDump(name.toStdString());
    flyTreeStructure_->Refresh();
}

void frmParserWindow::FindNext()
{
    const FindResult result = document_->FindNext(flyTreeStructure_->Selected(), state_.find);
    if (result.outcome == FindOutcome::ReadFailed) return TellFailure(result.failure);
    if (result.node != 0) SelectNode(result.node);
    if (result.outcome == FindOutcome::NoMore)
        MessageBox(BoxIcon::Information, "Information", state_.InterfaceTexts()[U("No (more) items found!")]);
}

void frmParserWindow::ExpandAll()
{
    document_->SetOperationInteruptedFlag(false);
    OperationStarts(document_->Tree().Nodes().Size());
    flyTreeStructure_->ExpandAll([this] {
        GiveWay();
        return !document_->GetOperationInteruptedFlag();
    });
    OperationEnds();
    document_->SetOperationInteruptedFlag(false);
}

void frmParserWindow::FullCollapse() { flyTreeStructure_->FullCollapse(); }

std::string frmParserWindow::SelectedPath() const { return flyTreeStructure_->FullPath(flyTreeStructure_->Selected()); }

void frmParserWindow::SelectPath(const std::string& path)
{
    const std::uint32_t node = flyTreeStructure_->ExtractNode(path);
    SelectNode(node != 0 ? node : NodeStore::kRoot);
}

// ------------------------------------------------------------------------------------------------------------- panes

void frmParserWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    picHex_->SetWindowWidth(width());
    if (!isMinimized()) PlacePanes();
}

QSize frmParserWindow::sizeHint() const
{
    constexpr QSize kLeast(kSmallest, 400);
    const QWidget* const frame = parentWidget();
    const QWidget* const area = frame != nullptr ? frame->parentWidget() : nullptr;
    return area != nullptr ? (area->size() * 3 / 4).expandedTo(kLeast) : kLeast;
}

void frmParserWindow::PlacePanes()
{
    const PaneLayout& panes = state_.panes;
    const int inner = width(), status = picStatusBar_->sizeHint().height();
    int bottom = height() - status;
    picStatusBar_->setGeometry(0, bottom, inner, status);
    if (!picHex_->isHidden()) {
        const int wanted = static_cast<int>(panes.HexWindowHeight * static_cast<float>(height()) / 100);
        const int hex = std::max(wanted, picHex_->minimumHeight());
        picHex_->setGeometry(0, bottom - hex, inner, hex);
        bottom -= hex + Divider::kThickness;
        imgDivider3_->setGeometry(0, bottom, inner, Divider::kThickness);
    }
    const int tree = static_cast<int>(panes.TreeWidthPercentual * static_cast<float>(inner) / 100);
    flyTreeStructure_->setGeometry(0, 0, tree, bottom);
    imgDivider_->setGeometry(tree, 0, Divider::kThickness, bottom);
    int right = inner;
    if (!picViewFrame_->isHidden()) {
        const int view = static_cast<int>(panes.CPVWidthPercentual * static_cast<float>(inner) / 100);
        picViewFrame_->setGeometry(inner - view, 0, view, bottom);
        right = inner - view - Divider::kThickness;
        imgDivider2_->setGeometry(right, 0, Divider::kThickness, bottom);
    }
    const int left = tree + Divider::kThickness;
    txtProperties_->setGeometry(left, 0, right - left, bottom);
}

// The bounds are open: a divider that would stand on one stays where it is.
void frmParserWindow::DragTreeDivider(int position)
{
    const float percentage = static_cast<float>(position) * 100 / static_cast<float>(width());
    if (percentage <= 10 || percentage >= 100 - state_.panes.CPVWidthPercentual - 10) return;
    state_.panes.TreeWidthPercentual = percentage;
    PlacePanes();
}

void frmParserWindow::DragPreviewDivider(int position)
{
    const float percentage = static_cast<float>(position) * 100 / static_cast<float>(width());
    if (percentage <= state_.panes.TreeWidthPercentual + 10 || percentage >= 90) return;
    state_.panes.CPVWidthPercentual = 100 - percentage;
    PlacePanes();
}

void frmParserWindow::DragHexDivider(int position)
{
    const float percentage = static_cast<float>(position) * 100 / static_cast<float>(height());
    if (percentage <= 30 || percentage >= 80) return;
    state_.panes.HexWindowHeight = 100 - percentage;
    PlacePanes();
}

}  // namespace folioscope

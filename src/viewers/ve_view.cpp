#include "viewers/ve_view.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "viewers/page_area.h"
#include "viewers/qt_text.h"

namespace folioscope {

VEView::VEView(QWidget* parent) : QWidget(parent), area_(new PageArea(this)), lblPage_(new QLabel(this))
{
    setObjectName(QStringLiteral("VEView"));
    area_->setObjectName(QStringLiteral("PageArea"));
    lblPage_->setObjectName(QStringLiteral("lblPage"));
    lblPage_->setAlignment(Qt::AlignCenter);
    lblPage_->setTextFormat(Qt::PlainText);
    lblPage_->setWordWrap(true);
    lblPage_->setMargin(3);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(area_, 1);
    layout->addWidget(lblPage_);
    setFocusProxy(area_);
    area_->paintPage = [this](QPainter& painter) { PaintPage(painter); };
    connect(area_, &PageArea::Resized, this, &VEView::PlacePage);
    connect(area_, &PageArea::TurnWanted, this, &VEView::Turn);
    connect(area_, &PageArea::EndWanted, this,
            [this](Qt::Edge edge) { GoToPage(edge == Qt::TopEdge ? 1 : PageCount()); });
    connect(area_, &PageArea::ZoomWanted, this, &VEView::ZoomAt);
    Refresh();
}

void VEView::SetTexts(const Labels& texts)
{
    texts_ = texts;
    Refresh();
}

// The document's answer; the other one if there is no document or the engine fails.
template <typename Answer, typename Question> Answer VEView::Ask(Answer otherwise, Question question)
{
    if (document_ == nullptr) return otherwise;
    try {
        return question(*document_);
    } catch (...) {
        Fault();
        return otherwise;
    }
}

// It may come while the page is painted, so all that follows from it waits.
void VEView::Fault()
{
    if (failed_) return;
    failed_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Refresh(); }, Qt::QueuedConnection);
    if (told_) return;
    told_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT EngineFailed(); }, Qt::QueuedConnection);
}

int VEView::PageCount()
{
    return Ask(0, [](const ViewDocument& document) { return document.PageCount(); });
}

bool VEView::KnowsAllPages()
{
    return Ask(true, [](const ViewDocument& document) { return document.KnowsAllPages(); });
}

void VEView::Attach(ViewDocument* document, VEViewListener* listener)
{
    document_ = document;
    listener_ = listener;
    page_ = wanted_ = 0;
    failed_ = told_ = false;
    PagesGrew();
}

void VEView::PagesGrew()
{
    const int count = PageCount();
    if (page_ == 0 && count > 0) page_ = 1;
    if (wanted_ > 0 && wanted_ <= count)
        ShowPage(wanted_, Qt::TopEdge);
    else if (wanted_ > 0 && KnowsAllPages())
        wanted_ = 0;
    Refresh();
}

void VEView::ShowFailure()
{
    failed_ = true;
    Refresh();
}

void VEView::GoToPage(int page)
{
    if (page < 1) return;
    if (page <= PageCount())
        ShowPage(page, Qt::TopEdge);
    else if (!KnowsAllPages())
        wanted_ = page;
}

void VEView::Turn(int pages, Qt::Edge edge)
{
    const int page = page_ + pages;
    if (page >= 1 && page <= PageCount()) ShowPage(page, edge);
}

void VEView::ShowPage(int page, Qt::Edge edge)
{
    wanted_ = 0;
    if (page == page_) return;
    page_ = page;
    failed_ = false;
    Refresh();
    area_->ScrollTo(edge);
    if (listener_ != nullptr) listener_->CurrentPageNumberChanged();
}

double VEView::Zoom() const
{
    return fit_ == kFitNone || size_.isEmpty() ? zoom_ : FitPercent(size_, fit_, area_->Room(), area_->BarExtent());
}

void VEView::SetZoom(double percent)
{
    zoom_ = percent;
    fit_ = kFitNone;
    PlacePage();
}

void VEView::SetFitMode(int mode)
{
    if (mode != kFitWholePage && mode != kFitPageWidth) return;
    fit_ = mode;
    PlacePage();
}

void VEView::SetRotation(int quarterTurns)
{
    if (quarterTurns < 0 || quarterTurns > 3) return;
    rotation_ = quarterTurns;
    Refresh();
}

void VEView::SetShowOptions(bool pageEdges, bool pageLine)
{
    area_->SetEdges(pageEdges);
    lineShown_ = pageLine;
    Refresh();
}

// What is under the pointer stays there.
void VEView::ZoomAt(int steps, QPointF fixed)
{
    fixed_ = fixed;
    Q_EMIT ZoomStepWanted(steps);
    fixed_ = {};
}

QRectF VEView::PageRect() const { return area_->PageRect(); }

QString VEView::Line() const { return area_->Notice().isEmpty() ? lblPage_->text() : area_->Notice(); }

QString VEView::Notice()
{
    if (failed_) return ToQt(texts_, kViewerProblem);
    if (document_ == nullptr || page_ > 0) return {};
    return ToQt(texts_, KnowsAllPages() ? U("This document has no pages to show.") : U("Looking for pages ..."));
}

// All that depends on the page, its size and the language.
void VEView::Refresh()
{
    const QSizeF size = Ask(QSizeF(), [this](const ViewDocument& document) {
        return page_ > 0 ? ShowablePage(document.PageSize(page_)) : QSizeF();
    });
    size_ = TurnedPage(size, rotation_);
    const QString notice = Notice();
    const bool hasPage = !size.isEmpty() && notice.isEmpty();
    const QString line = hasPage ? PageLine(texts_, QLocale(), page_, PageCount(), KnowsAllPages(), size) : QString();
    lblPage_->setText(line);
    lblPage_->setVisible(lineShown_ && hasPage);
    area_->setAccessibleName(ToQt(texts_, U("Page preview")));
    area_->setAccessibleDescription(hasPage ? line : notice);
    if (hasPage)
        PlacePage();
    else
        area_->ShowNotice(notice.isEmpty() ? QStringLiteral(" ") : notice);
}

void VEView::PlacePage()
{
    if (size_.isEmpty() || failed_) return;
    area_->ShowPage(ShownSize(size_, Zoom(), area_->devicePixelRatioF()), fixed_);
}

void VEView::PaintPage(QPainter& painter)
{
    const double scale = area_->PageRect().width() / size_.width();
    Ask(true, [&](ViewDocument& document) {
        document.DrawPage(page_, painter, scale, rotation_);
        return true;
    });
}

}  // namespace folioscope

#pragma once

#include <QWidget>

#include "base/labels.h"
#include "viewers/page_geometry.h"
#include "viewers/preview_engine.h"

class QLabel;

namespace folioscope {

class PageArea;

// What is said of a document that can't be shown, with a second line.
inline constexpr Label kViewerProblem = U("Sorry, this file can't be displayed currently due to a problem in the "
                                          "viewer!\r\nPlease send the file to the makers of this program, so that "
                                          "they can look into it.");

// Shows one page of a document at a time, and under it which one that is. Page Up and Page Down turn the pages, Home
// and End go to the first and the last, the arrows and the wheel scroll; Ctrl and the wheel ask for another zoom.
// A fault of the engine shows a notice in the page's place.
class VEView final : public QWidget {
    Q_OBJECT

public:
    explicit VEView(QWidget* parent);

    void SetTexts(const Labels& texts);

    // Shows the first page, without a word to the listener. Both outlive the view or are taken off with null.
    void Attach(ViewDocument* document, VEViewListener* listener);
    void PagesGrew();  // the document knows more pages
    void ShowFailure();

    int CurrentPage() const { return page_; }  // from 1; 0 without a page
    // A page that isn't known yet is gone to once it is. One that the document doesn't have changes nothing.
    void GoToPage(int page);

    double Zoom() const;  // in percent, as shown
    void SetZoom(double percent);
    int FitMode() const { return fit_; }
    void SetFitMode(int mode);  // kFitWholePage or kFitPageWidth
    int Rotation() const { return rotation_; }
    void SetRotation(int quarterTurns);  // 0 to 3, clockwise
    void SetShowOptions(bool pageEdges, bool pageLine);
    int Mode() const { return mode_; }
    void SetMode(int mode) { mode_ = mode; }  // 1, one page at a time, is the only one

    QRectF PageRect() const;  // where the page lies, in the area that is scrolled
    QString Line() const;     // under the page, or the notice in its place

Q_SIGNALS:
    void EngineFailed();  // once a document
    void ZoomStepWanted(int steps);

private:
    template <typename Answer, typename Question> Answer Ask(Answer otherwise, Question question);
    void Fault();
    int PageCount();
    bool KnowsAllPages();
    void ShowPage(int page, Qt::Edge edge);
    void Turn(int pages, Qt::Edge edge);
    void ZoomAt(int steps, QPointF fixed);
    void PaintPage(QPainter& painter);
    void Refresh();
    void PlacePage();
    QString Notice();

    Labels texts_{Language::English};
    ViewDocument* document_ = nullptr;
    VEViewListener* listener_ = nullptr;
    PageArea* area_;
    QLabel* lblPage_;
    QSizeF size_;  // of the page in points, as turned
    QPointF fixed_;
    double zoom_ = 100;
    int fit_ = kFitNone;
    int page_ = 0, wanted_ = 0;  // wanted_: to be gone to once it is known
    int rotation_ = 0;
    int mode_ = 1;
    bool lineShown_ = true;
    bool failed_ = false, told_ = false;
};

}  // namespace folioscope

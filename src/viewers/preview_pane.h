#pragma once

#include <QFrame>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>

#include "base/labels.h"
#include "viewers/preview_engine.h"

class QPrinter;
class QTimer;

namespace folioscope {

class VEView;

// The pages of a document beside its tree. The page on show and the selected node follow each other: the tree turns
// the page at once, the pages select a node a while after the last turn.
//
// Nothing that the engine does wrong leaves the pane: a fault becomes the signal Failed.
class PreviewPane final : public QFrame {
    Q_OBJECT

public:
    // Shows the printer's dialog for pages from 1 to maxPage. False: the user has cancelled it.
    using ChoosePrinter = std::function<bool(QPrinter& printer, int maxPage, QWidget* parent)>;

    explicit PreviewPane(QWidget* parent);
    ~PreviewPane() override;

    void SetTexts(const Labels& texts);
    // Both outlive the pane. Without an engine nothing opens.
    void SetEngine(PreviewEngine* engine, IVEDisplayMachineCallback* callback, const QString& program);

    // Of the owner, to be set once.
    std::function<const std::deque<std::uint32_t>*()> pageEnds;  // tree indexes of the EPG leaves, ascending; or null
    std::function<bool()> isSearchTermEmpty;
    ChoosePrinter choosePrinter;  // preset to the platform's dialog

    // Opens the document at the first call that succeeds, and keeps it as long as the pane lives. A failure is
    // signalled too.
    bool Open(const QString& path, bool autoRotation);

    // The page that the node belongs to, if the pane is shown: the node numbers are tree indexes.
    void TurnToPageOf(std::uint32_t node, const std::deque<std::uint32_t>& lngPageEnds);

    void FitToSize(int intSizeWidth);       // 1 the whole page, 2 the page's width
    void ViewRotate(int intDegrees);        // quarter turns: 1 clockwise, -1 counter-clockwise
    void ViewZoomLevel(int intZoomChange);  // percent to be added
    void ViewZoom100();
    void ViewPrint();

    int PreviewZoom() const { return PreviewZoom_; }  // percent
    VEView& View() const { return *view_; }

Q_SIGNALS:
    // The node at the end of the page that the user has turned to. What its selection asks of the pane meanwhile turns
    // no page.
    void PageEndWanted(std::uint32_t node);
    // The engine has failed; kViewerProblem is the text for the user.
    void Failed();

private:
    struct Listener;

    void viewListener_CurrentPageNumberChanged();
    void ViewTimer_Timer();
    void ZoomFromView(int steps);
    void Print();
    void TellPrinterFailure(const QString& printer);

    PreviewEngine* engine_ = nullptr;
    IVEDisplayMachineCallback* callback_ = nullptr;
    QString program_, path_;
    Labels texts_{Language::English};
    VEView* view_;
    QTimer* ViewTimer_;
    std::unique_ptr<Listener> viewListener_;
    std::unique_ptr<ViewDocument> document_;
    std::int16_t PreviewZoom_ = 100;
    int treePage_ = 0;  // that the tree wants, while it isn't known yet
    bool bolPageFromTree_ = false, bolPageFromView_ = false;
};

}  // namespace folioscope

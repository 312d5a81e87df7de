// The frame's commands that act on the document: searching, the tree, the pages.

#include <algorithm>
#include <array>

#include "shell/frmFind.h"
#include "shell/frmMainWindow.h"
#include "shell/frmParserWindow.h"
#include "viewers/preview_pane.h"

namespace folioscope {

namespace {

constexpr int kZoomStep = 10;  // percent

}  // namespace

// ---------------------------------------------------------------------------------------------------------- searching

void frmMainWindow::mnuEditFind()
{
    frmFind dialog(state_.InterfaceTexts(), state_.find, this);
    dialog.exec();
    state_.find = dialog.Term();
    if (!state_.find.strSearch.empty()) mnuEditFindNext();
}

void frmMainWindow::mnuEditFindNext()
{
    if (state_.find.strSearch.empty()) return mnuEditFind();
    if (frmParserWindow* const document = ActiveDocument()) document->FindNext();
}

void frmMainWindow::mnuEditTreeExpand()
{
    if (frmParserWindow* const document = ActiveDocument()) document->ExpandAll();
}

void frmMainWindow::mnuEditTreeCollapse()
{
    if (frmParserWindow* const document = ActiveDocument()) document->FullCollapse();
}

void frmMainWindow::tlbCancel()
{
    if (frmParserWindow* const document = ActiveDocument()) document->cmdCancel_Click();
}

// ------------------------------------------------------------------------------------------------------------ preview

template <class... Parameters, class... Arguments>
void frmMainWindow::ActOnPages(void (PreviewPane::*operation)(Parameters...), Arguments... arguments)
{
    if (frmParserWindow* const document = ActiveDocument()) (document->Pages().*operation)(arguments...);
}

void frmMainWindow::tlbPreview()
{
    if (frmParserWindow* const document = ActiveDocument()) document->ShowPreview();
}

void frmMainWindow::tlbTurnLeft() { ActOnPages(&PreviewPane::ViewRotate, -1); }

void frmMainWindow::tlbTurnRight() { ActOnPages(&PreviewPane::ViewRotate, 1); }

void frmMainWindow::tlbFitToWidth() { ActOnPages(&PreviewPane::FitToSize, 2); }

void frmMainWindow::tlbFitToSize() { ActOnPages(&PreviewPane::FitToSize, 1); }

void frmMainWindow::tlbZoomOut() { ActOnPages(&PreviewPane::ViewZoomLevel, -kZoomStep); }

void frmMainWindow::tlbZoom100() { ActOnPages(&PreviewPane::ViewZoom100); }

void frmMainWindow::tlbZoomIn() { ActOnPages(&PreviewPane::ViewZoomLevel, kZoomStep); }

void frmMainWindow::tlbPrint() { ActOnPages(&PreviewPane::ViewPrint); }

void frmMainWindow::IVEDisplayMachineCallback_LogMessage(const QString& /*origin*/, int number, int severity,
                                                         const QString& message)
{
    constexpr std::array kKnown = {1038, 2014, 3015, 3204};  // what every other file gives
    if (std::ranges::find(kKnown, number) != kKnown.end() || severity < 2 || severity > 4) return;
    constexpr std::array kSeverities = {MessageSeverity::Warning, MessageSeverity::Error, MessageSeverity::Fatal};
    state_.messages.addMessage(MessageSource::Viewer, kSeverities[static_cast<std::size_t>(severity) - 2],
                               message.toStdString(), severity > 2);
}

}  // namespace folioscope

#pragma once

#include <QMainWindow>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "shell/interface_words.h"
#include "shell/shell_state.h"
#include "viewers/preview_engine.h"

class QAction;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;

namespace folioscope {

class frmMessages;
class frmOptions;
class frmParserWindow;
class PreviewPane;

// Starts a copy of the program with these arguments. True if it started.
using ProcessStarter = std::function<bool(const QStringList& arguments)>;

// The frame of the process: menus, toolbar and at most one document. Nearly all commands act on the document.
class frmMainWindow final : public QMainWindow, public IVEDisplayMachineCallback {
    Q_OBJECT

public:
    explicit frmMainWindow(ShellState& state, QWidget* parent = nullptr);
    ~frmMainWindow() override;

    void SetProcessStarter(ProcessStarter starter) { starter_ = std::move(starter); }

    // Opens a file here, or in a process of its own if there is a document already.
    void ProcessFile(const QString& path);
    frmParserWindow* ActiveDocument() const;
    frmMessages& Messages() { return *messages_; }
    frmOptions& Options() { return *options_; }
    void PlaceWindow();      // where it stood when it was closed last
    void AskAtFirstStart();  // has the options confirmed if that was never done

    void mnuFileOpen();
    void mnuFileClose();
    void mnuFileReload();
    void mnuFileSaveDump();
    void mnuFileSaveDumpAs();
    void mnuFileExit();
    void mnuEditFind();
    void mnuEditFindNext();
    void mnuEditTreeExpand();
    void mnuEditTreeCollapse();
    void mnuExtrasOptions();
    void mnuWindowsMessages();
    void mnuWindowsCascade();
    void mnuWindowsTileVertical();
    void mnuWindowsTileHorizontal();
    void mnuWindowsCloseAll();
    void mnuHelpHelp();
    void mnuHelpWebsite();
    void mnuHelpAbout();
    void tlbCancel();
    void tlbPreview();
    void tlbTurnLeft();
    void tlbTurnRight();
    void tlbFitToWidth();
    void tlbFitToSize();
    void tlbZoomOut();
    void tlbZoom100();
    void tlbZoomIn();
    void tlbPrint();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void IVEDisplayMachineCallback_LogMessage(const QString& origin, int number, int severity,
                                              const QString& message) override;

    void MakeCommands();
    void MakeRecentFiles(QMenu& menu);
    void SetTexts();
    void TryLanguage(Language language);
    void SetIcons();
    void ShowRecentFiles();
    void UpdateCommands();
    void StartProcess(const QString& path);
    void OpenHere(const QString& path);
    void OpenFiles(const QStringList& paths);
    void Tile(Qt::Orientation direction);
    bool MayReplace(const QString& name);
    void TellOf(Label problem, const QString& what);
    void TellOfNoBrowser(const QString& address);
    template <class... Parameters, class... Arguments>
    void ActOnPages(void (PreviewPane::*operation)(Parameters...), Arguments... arguments);

    ShellState& state_;
    ProcessStarter starter_;
    QMdiArea* area_;
    QToolBar* tlbMenu_;
    InterfaceWords words_;
    QObject* listener_;  // on whose behalf the window hears of its documents
    std::unique_ptr<frmMessages> messages_;
    std::unique_ptr<frmOptions> options_;
    std::unique_ptr<PreviewEngine> engine_;  // outlives the documents
    std::vector<QAction*> commands_;         // in the order of their table
    std::vector<QMenu*> menus_;
    QAction* mnuDivider10_ = nullptr;
    std::array<QAction*, RecentFiles::kPlaces> mnuFileListFile_{};
};

}  // namespace folioscope

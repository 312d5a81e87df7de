#include "shell/frmMainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

#include "base/settings_store.h"
#include "base/text.h"
#include "shell/dropped_files.h"
#include "shell/frmInformation.h"
#include "shell/frmMessages.h"
#include "shell/frmParserWindow.h"
#include "shell/help_window.h"
#include "shell/icons.h"
#include "shell/main_commands.h"
#include "shell/website.h"
#include "viewers/access_keys.h"
#include "viewers/frmOptions.h"
#include "viewers/page_frame_engine.h"
#include "viewers/preview_pane.h"
#include "viewers/qt_text.h"
#include "viewers/question.h"

namespace folioscope {

namespace {

constexpr char kProgram[] = "Folioscope";
constexpr int kTwips = 15;  // a pixel

struct MenuRow {
    Menu menu;
    const char* name;
    Label text;
};
// clang-format off
constexpr MenuRow kMenus[] = {
    {Menu::File,    "mnuFile",    U("&File")},
    {Menu::Edit,    "mnuEdit",    U("&Edit")},
    {Menu::Extras,  "mnuExtras",  U("E&xtras")},
    {Menu::Windows, "mnuWindows", U("&Windows")},
    {Menu::Help,    "mnuHelp",    U("&Help")},
};
// clang-format on

}  // namespace

frmMainWindow::frmMainWindow(ShellState& state, QWidget* parent)
    : QMainWindow(parent), state_(state), area_(new QMdiArea(this)), tlbMenu_(new QToolBar(this)),
      listener_(new QObject(this)),
      messages_(std::make_unique<frmMessages>(state.messages, state.settings, state.InterfaceTexts())),
      options_(std::make_unique<frmOptions>(state.store, state.settings, QCoreApplication::applicationDirPath(), this)),
      engine_(std::make_unique<PageFrameEngine>(
          EngineSetup{this, kProgram, QDir::tempPath(), [this] { return state_.InterfaceTexts(); }}))
{
    setObjectName("frmMainWindow");
    setWindowTitle(kProgram);
    setAcceptDrops(true);
    setCentralWidget(area_);
    area_->setObjectName("mdiArea");
    tlbMenu_->setObjectName("tlbMenu");
    tlbMenu_->setMovable(false);
    tlbMenu_->setContextMenuPolicy(Qt::PreventContextMenu);
    addToolBar(tlbMenu_);
    connect(area_, &QMdiArea::subWindowActivated, listener_, [this] { UpdateCommands(); });
    connect(messages_.get(), &frmMessages::MessagesArrived, this, &frmMainWindow::UpdateCommands);
    connect(options_.get(), &frmOptions::LanguageChosen, this, &frmMainWindow::TryLanguage);
    MakeCommands();
    SetTexts();
    SetIcons();
    UpdateCommands();
}

// The documents go while the window is still whole, and nobody listens any more.
frmMainWindow::~frmMainWindow()
{
    delete listener_;
    delete area_;
}

// ---------------------------------------------------------------------------------------------------------- commands

void frmMainWindow::MakeCommands()
{
    for (const MenuRow& row : kMenus) {
        menus_.push_back(menuBar()->addMenu(QString()));
        menus_.back()->setObjectName(row.name);
    }
    for (const MainCommand& row : MainCommands()) {
        QMenu* const menu = row.menu == Menu::None ? nullptr : menus_[static_cast<std::size_t>(row.menu) - 1];
        const bool separator = row.text == Label::None;
        auto* const action = new QAction(this);
        action->setSeparator(separator);
        action->setObjectName(row.item != nullptr ? row.item : row.button);  // none for most separators
        if (row.key != 0) action->setShortcut(QKeySequence(row.key));
        if (row.action != nullptr) connect(action, &QAction::triggered, this, [this, row] { (this->*row.action)(); });
        if (menu != nullptr) menu->addAction(action);
        if (row.button != nullptr || (separator && menu == nullptr)) tlbMenu_->addAction(action);
        if (row.button != nullptr && !separator) tlbMenu_->widgetForAction(action)->setObjectName(row.button);
        commands_.push_back(action);
    }
    MakeRecentFiles(*menus_.front());
}

// In front of the item that ends the program.
void frmMainWindow::MakeRecentFiles(QMenu& menu)
{
    QAction* const exit = menu.actions().back();
    mnuDivider10_ = menu.insertSeparator(exit);
    mnuDivider10_->setObjectName("mnuDivider10");
    for (std::size_t place = 0; place < RecentFiles::kPlaces; ++place) {
        auto* const item = new QAction(this);
        item->setObjectName("mnuFileListFile" + QString::number(place + 1));
        connect(item, &QAction::triggered, this, [this, place] { ProcessFile(ToQt(state_.recentFiles[place])); });
        menu.insertAction(mnuDivider10_, item);
        mnuFileListFile_[place] = item;
    }
    ShowRecentFiles();
}

void frmMainWindow::SetTexts()
{
    const Labels texts = state_.InterfaceTexts();
    words_.Take(texts.InForce());
    for (std::size_t i = 0; i < std::size(kMenus); ++i) menus_[i]->setTitle(ToQt(texts, kMenus[i].text));
    const auto rows = MainCommands();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        commands_[i]->setText(ToQt(texts, rows[i].text));
        commands_[i]->setToolTip(ToQt(texts, rows[i].text));  // sic, with the mark of the access key
    }
    for (QMenu* const menu : menus_) GiveAccessKeys(*menu);
    tlbMenu_->setWindowTitle(ToQt(texts, U("Toolbar")));
    messages_->SetTexts(texts);
    options_->SetTexts(texts);
    for (QMdiSubWindow* const window : area_->subWindowList())
        if (auto* const document = qobject_cast<frmParserWindow*>(window->widget())) document->SetTexts();
}

// A language is tried out in the whole program while the options are open.
void frmMainWindow::TryLanguage(Language language)
{
    state_.triedLanguage = language;
    SetTexts();
}

void frmMainWindow::SetIcons()
{
    const auto rows = MainCommands();
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].icon != nullptr) commands_[i]->setIcon(ToolbarIcon(rows[i].icon));
}

void frmMainWindow::UpdateCommands()
{
    const frmParserWindow* const document = ActiveDocument();
    const bool busy = document != nullptr && document->IsBusy();
    const bool pagesShown = document != nullptr && document->PreviewShown();
    const auto enabled = [&](When when) {
        switch (when) {
        case When::Always: return true;
        case When::Document: return document != nullptr;
        case When::Idle: return document != nullptr && !busy;
        case When::Busy: return busy;
        case When::HasMessages: return document != nullptr && state_.messages.Size() > 0;
        case When::HasPages: return document != nullptr && document->HasPreview();
        case When::PagesShown: return pagesShown;
        }
        return false;
    };
    const auto rows = MainCommands();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        commands_[i]->setEnabled(enabled(rows[i].when));
        if (rows[i].when == When::PagesShown) commands_[i]->setVisible(pagesShown);
    }
}

void frmMainWindow::ShowRecentFiles()
{
    for (std::size_t place = 0; place < RecentFiles::kPlaces; ++place) {
        const std::string& path = state_.recentFiles[place];
        mnuFileListFile_[place]->setText(ToQt(RecentFileCaption(place, path)));
        mnuFileListFile_[place]->setVisible(!path.empty());
    }
    mnuDivider10_->setVisible(!state_.recentFiles[0].empty());
}

// -------------------------------------------------------------------------------------------------------------- files

frmParserWindow* frmMainWindow::ActiveDocument() const
{
    const QMdiSubWindow* const window = area_->currentSubWindow();
    return window != nullptr ? qobject_cast<frmParserWindow*>(window->widget()) : nullptr;
}

void frmMainWindow::ProcessFile(const QString& path)
{
    if (ActiveDocument() != nullptr)
        StartProcess(path);
    else
        OpenHere(path);
}

void frmMainWindow::StartProcess(const QString& path)
{
    QStringList arguments = {"/fromFSV"};
    const std::string& term = state_.find.strSearch;
    if (!term.empty()) arguments << "/search=" + ToQt(std::string_view(term).substr(0, term.find(' ')));
    if (!state_.strReloadNode.empty()) arguments << "/reload=" + ToQt(state_.strReloadNode);
    arguments << path;
    if (starter_ ? !starter_(arguments) : !QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
        TellOf(U("The file could not be opened in a second window:\r\n%1\r\nThe program could not be started again. "
                 "Please close this document first, then open the file."),
               path);
}

void frmMainWindow::OpenHere(const QString& path)
{
    auto* const document = new frmParserWindow(state_);
    document->Pages().SetEngine(engine_.get(), this, kProgram);
    QMdiSubWindow* const window = area_->addSubWindow(document);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(path);
    connect(document, &frmParserWindow::StateChanged, listener_, [this] { UpdateCommands(); });
    connect(document, &frmParserWindow::FilesDropped, this, &frmMainWindow::OpenFiles, Qt::QueuedConnection);
    connect(document, &frmParserWindow::LinkNotOpened, this, &frmMainWindow::TellOfNoBrowser);
    connect(window, &QObject::destroyed, listener_, [this] {
        state_.messages.Clear();
        UpdateCommands();
    });
    window->showMaximized();
    state_.recentFiles.Add(QFileInfo(path).absoluteFilePath().toStdString());
    ShowRecentFiles();
    if (!document->ProcessAFPFile(path)) {
        window->close();
        return;
    }
    if (state_.bolExtract) document->SaveDump(path + ".txt");
    if (state_.strReloadNode.empty()) return;
    document->SelectPath(state_.strReloadNode);
    state_.strReloadNode.clear();
}

void frmMainWindow::OpenFiles(const QStringList& paths)
{
    for (const QString& path : paths) ProcessFile(path);
}

void frmMainWindow::mnuFileOpen()
{
    const Labels texts = state_.InterfaceTexts();
    const std::string& last = state_.recentFiles[0];
    const QString folder = last.empty() ? QDir::homePath() : QFileInfo(ToQt(last)).path();
    const QString path = QFileDialog::getOpenFileName(this, ToQt(texts, U("Select AFP File ...")), folder,
                                                      ToQt(texts, U("All Files (*.*)|*.*")).section('|', 0, 0));
    if (!path.isEmpty()) ProcessFile(path);
}

void frmMainWindow::mnuFileClose() { area_->closeActiveSubWindow(); }

void frmMainWindow::mnuFileReload()
{
    frmParserWindow* const document = ActiveDocument();
    if (document == nullptr) return;
    state_.strReloadNode = document->SelectedPath();
    ProcessFile(document->Path());
    state_.strReloadNode.clear();
    area_->closeActiveSubWindow();
}

void frmMainWindow::mnuFileSaveDump()
{
    frmParserWindow* const document = ActiveDocument();
    if (document == nullptr) return;
    const QString name = document->Path() + ".txt";
    if (MayReplace(name)) document->SaveDump(name);
}

bool frmMainWindow::MayReplace(const QString& name)
{
    if (!QFileInfo::exists(name)) return true;
    const Labels texts = state_.InterfaceTexts();
    QString text = ToQt(texts, U("%1 already exists! \r\nDo you want to replace it?"));
    text.replace("%1", name);
    return AskUser(this, texts, text);
}

void frmMainWindow::mnuFileSaveDumpAs()
{
    frmParserWindow* const document = ActiveDocument();
    if (document == nullptr) return;
    QFileDialog dialog(this, ToQt(state_.InterfaceTexts(), U("&Save text dump as ...")).remove('&'));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("txt");
    dialog.setNameFilter("Text (*.txt)");
    dialog.selectFile(document->Path() + ".txt");
    if (dialog.exec() == QDialog::Accepted) document->SaveDump(dialog.selectedFiles().constFirst());
}

void frmMainWindow::mnuFileExit() { close(); }

// ------------------------------------------------------------------------------------------------------------ windows

// In the options a language is tried out; what holds afterwards is what was confirmed.
void frmMainWindow::mnuExtrasOptions()
{
    options_->exec();
    state_.triedLanguage.reset();
    SetTexts();
    if (frmParserWindow* const document = ActiveDocument()) document->TakeSettings();
}

void frmMainWindow::AskAtFirstStart()
{
    if (!IsFirstStart(state_.store)) return;
    state_.store.CreateRegistryKey(kSettingsKey);
    options_->SetCancelEnabled(false);
    mnuExtrasOptions();
    options_->SetCancelEnabled(true);
}

void frmMainWindow::mnuWindowsMessages() { messages_->ShowOnRequest(); }

void frmMainWindow::mnuWindowsCascade() { area_->cascadeSubWindows(); }

void frmMainWindow::mnuWindowsTileVertical() { Tile(Qt::Horizontal); }

void frmMainWindow::mnuWindowsTileHorizontal() { Tile(Qt::Vertical); }

// Side by side, or one below the other; each as large as it can be.
void frmMainWindow::Tile(Qt::Orientation direction)
{
    const auto windows = area_->subWindowList();
    if (windows.isEmpty()) return;
    const int count = static_cast<int>(windows.size()), width = area_->width(), height = area_->height();
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        if (direction == Qt::Horizontal)
            windows[i]->setGeometry(width * i / count, 0, width / count, height);
        else
            windows[i]->setGeometry(0, height * i / count, width, height / count);
    }
}

void frmMainWindow::mnuWindowsCloseAll() { area_->closeAllSubWindows(); }

void frmMainWindow::mnuHelpHelp() { ShowHelp(state_.settings.InterfaceLanguage(), this); }

void frmMainWindow::mnuHelpWebsite()
{
    const Labels texts = state_.InterfaceTexts();
    const QString address = ToQt(texts, U("http://www.marrowgate.example/"));
    if (!OpenWebsite(state_.store, address)) TellOfNoBrowser(address);
}

void frmMainWindow::TellOfNoBrowser(const QString& address)
{
    TellOf(U("No internet browser has been found for showing the following URL:\r\n%1"), address);
}

// What went wrong, with what.
void frmMainWindow::TellOf(Label problem, const QString& what)
{
    QString text = ToQt(state_.InterfaceTexts(), problem);
    QMessageBox box(QMessageBox::Critical, "Stop", text.replace("%1", what), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void frmMainWindow::mnuHelpAbout() { frmInformation(state_.InterfaceTexts(), this).exec(); }

void frmMainWindow::PlaceWindow()
{
    const QSize screen = QGuiApplication::primaryScreen()->size() * kTwips;
    const folioscope::Screen twips = {static_cast<double>(screen.width()), static_cast<double>(screen.height())};
    const auto value = [&](const char* name) { return ReadWindowValue(state_.store, name, twips); };
    const auto inside = [](double position, double end) { return position < 0 || position > end ? 0.0 : position; };
    const auto pixels = [](double length) { return static_cast<int>(length / kTwips); };
    resize(pixels(value("WindowWidth")), pixels(value("WindowHeight")));
    if (!state_.bolFromFSV)
        move(pixels(inside(value("WindowLeft"), twips.width)), pixels(inside(value("WindowTop"), twips.height)));
    switch (static_cast<int>(value("WindowState"))) {
    case 1: showMinimized(); break;
    case 2: showMaximized(); break;
    default: break;
    }
}

// ------------------------------------------------------------------------------------------------------------- events

// A document at work is stopped first; the window goes at the next request.
void frmMainWindow::closeEvent(QCloseEvent* event)
{
    area_->closeAllSubWindows();
    if (ActiveDocument() != nullptr && ActiveDocument()->IsBusy()) return event->ignore();
    const int state = isMinimized() ? 1 : isMaximized() ? 2 : 0;
    const auto write = [&](const char* name, double value) {
        state_.store.SetRegistryValue(kSettingsKey, name, value);
    };
    write("WindowState", state);
    if (state == 0) {
        write("WindowTop", pos().y() * kTwips);
        write("WindowLeft", pos().x() * kTwips);
        write("WindowWidth", width() * kTwips);
        write("WindowHeight", height() * kTwips);
    }
    WriteWindowState(state_);
    messages_->hide();
    QMainWindow::closeEvent(event);
}

void frmMainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && !commands_.empty()) SetIcons();
    QMainWindow::changeEvent(event);
}

void frmMainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void frmMainWindow::dropEvent(QDropEvent* event) { OpenFiles(LocalFilesOf(*event->mimeData())); }

}  // namespace folioscope

#include "shell/frmMessages.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "viewers/access_keys.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

constexpr int kWidth = 840, kHeight = 260;
constexpr int kMargin = 8;                 // around the text of a cell, both sides together
constexpr int kMillisecondsTogether = 50;  // that new lines wait for others

// The rows of a selection, first and last, in list order.
std::vector<std::pair<int, int>> RowsOf(const QItemSelection& selection)
{
    std::vector<std::pair<int, int>> rows;
    for (const QItemSelectionRange& range : selection) rows.emplace_back(range.top(), range.bottom());
    std::sort(rows.begin(), rows.end());
    return rows;
}

}  // namespace

frmMessages::frmMessages(MessageList& messages, const Settings& settings, const Labels& texts, QWidget* parent)
    : QWidget(parent, Qt::Window), messages_(messages), settings_(settings), model_(messages, texts),
      lvwMessages_(new QTableView(this)), mnuPopup_(new QMenu(this)), mnuPopCopy_(new QAction(mnuPopup_)),
      mnuPopSelectAll_(new QAction(mnuPopup_))
{
    setObjectName(QStringLiteral("frmMessages"));
    setAttribute(Qt::WA_QuitOnClose, false);
    MakeList();
    MakeMenu();
    SetTexts(texts);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lvwMessages_);
    resize(kWidth, kHeight);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::hide);
    later_.setSingleShot(true);
    later_.setInterval(kMillisecondsTogether);
    connect(&later_, &QTimer::timeout, this, &frmMessages::CatchUp);
    messages_.SetListener(this);
}

frmMessages::~frmMessages() { messages_.SetListener(nullptr); }

void frmMessages::MakeList()
{
    lvwMessages_->setObjectName(QStringLiteral("lvwMessages"));
    lvwMessages_->setModel(&model_);
    lvwMessages_->setSelectionBehavior(QAbstractItemView::SelectRows);
    lvwMessages_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lvwMessages_->setTabKeyNavigation(false);
    lvwMessages_->setShowGrid(false);
    lvwMessages_->setWordWrap(false);
    lvwMessages_->setFrameShape(QFrame::NoFrame);
    lvwMessages_->verticalHeader()->hide();
    lvwMessages_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    lvwMessages_->horizontalHeader()->setStretchLastSection(true);
    lvwMessages_->horizontalHeader()->setHighlightSections(false);
}

void frmMessages::MakeMenu()
{
    mnuPopup_->setObjectName(QStringLiteral("mnuPopup"));
    mnuPopCopy_->setObjectName(QStringLiteral("mnuPopCopy"));
    mnuPopCopy_->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_C), QKeySequence(Qt::Key_Insert)});
    connect(mnuPopCopy_, &QAction::triggered, this, &frmMessages::Copy);
    mnuPopSelectAll_->setObjectName(QStringLiteral("mnuPopSelectAll"));
    mnuPopSelectAll_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_A));
    connect(mnuPopSelectAll_, &QAction::triggered, lvwMessages_, &QAbstractItemView::selectAll);
    for (QAction* const action : {mnuPopCopy_, mnuPopSelectAll_}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
        lvwMessages_->addAction(action);
        mnuPopup_->addAction(action);
    }
}

void frmMessages::SetTexts(const Labels& texts)
{
    setWindowTitle(ToQt(texts, U("Messages")));
    lvwMessages_->setAccessibleName(ToQt(texts, U("Messages")));
    mnuPopCopy_->setText(ToQt(texts, U("Copy")));
    mnuPopSelectAll_->setText(ToQt(texts, U("Select all")));
    GiveAccessKeys(*mnuPopup_);
    model_.SetTexts(texts);
    FitColumns();
}

// The first two columns are as wide as their widest text; the description has the rest.
void frmMessages::FitColumns()
{
    QFont bold = lvwMessages_->font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    lvwMessages_->verticalHeader()->setDefaultSectionSize(metrics.height() + kMargin);
    int widest = 0;
    for (const auto source :
         {MessageSource::General, MessageSource::Structure, MessageSource::Content, MessageSource::Viewer})
        widest = std::max(widest, metrics.horizontalAdvance(ToQt(NameOf(source))));
    QHeaderView& header = *lvwMessages_->horizontalHeader();
    header.resizeSection(MessageModel::Source, std::max(widest + 2 * kMargin, header.sectionSizeHint(0)));
    header.resizeSection(MessageModel::Severity, header.sectionSizeHint(MessageModel::Severity));
}

void frmMessages::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
    model_.SetLook(palette(), font());
    FitColumns();
}

// The close box only hides the window, so that the lines stay. Whoever else closes it may.
void frmMessages::closeEvent(QCloseEvent* event)
{
    if (!event->spontaneous()) return QWidget::closeEvent(event);
    messages_.Dismiss();
    hide();
    event->ignore();
}

void frmMessages::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous()) return;
    model_.SetLook(palette(), font());
    CatchUp();
}

void frmMessages::CatchUp()
{
    model_.CatchUp();
    lvwMessages_->scrollToBottom();
}

void frmMessages::MessageAdded(std::size_t /*index*/)
{
    Q_EMIT MessagesArrived();
    if (!isVisible()) {
        if (settings_.MessageWindow == 1) ShowMessages();
    } else if (!later_.isActive()) {
        later_.start();
    }
}

void frmMessages::MessagesCleared()
{
    later_.stop();
    model_.Forget();
}

// The user goes on working where he was.
void frmMessages::ShowMessages()
{
    QWidget* const active = QApplication::activeWindow();
    setAttribute(Qt::WA_ShowWithoutActivating);
    show();
    raise();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (active != nullptr) active->activateWindow();
}

void frmMessages::ShowOnRequest()
{
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    lvwMessages_->setFocus();
}

void frmMessages::Beep() { QApplication::beep(); }

// By the keyboard at the current line, by the mouse at the one under it.
void frmMessages::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QWidget& lines = *lvwMessages_->viewport();
    const QModelIndex current = lvwMessages_->currentIndex();
    const QPoint place =
        byKeyboard ? lvwMessages_->visualRect(current).center() : lines.mapFromGlobal(event->globalPos());
    if (!lines.rect().contains(place)) return;
    const QModelIndex line = byKeyboard ? current : lvwMessages_->indexAt(place);
    if (!line.isValid()) return;
    QItemSelectionModel& selection = *lvwMessages_->selectionModel();
    if (!selection.isSelected(line))
        selection.setCurrentIndex(line, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    mnuPopup_->popup(lines.mapToGlobal(place));
}

void frmMessages::Copy() const
{
    std::string text;
    for (const auto& [first, last] : RowsOf(lvwMessages_->selectionModel()->selection()))
        for (int row = first; row <= last; ++row) {
            const Message& message = messages_[static_cast<std::size_t>(row)];
            text.append(NameOf(message.source)).append("\t").append(NameOf(message.severity)).append("\t");
            text.append(messages_.Description(message)).append("\r\n");
        }
    if (!text.empty()) QApplication::clipboard()->setText(ToQt(text));
}

}  // namespace folioscope

#pragma once

#include <QTimer>
#include <QWidget>

#include "base/labels.h"
#include "base/settings.h"
#include "document/messages.h"
#include "shell/message_model.h"

class QAction;
class QMenu;
class QTableView;

namespace folioscope {

// The window over the message list. It lives as long as the process; its close box hides it. Only at the user's
// request does it take the keyboard from another window.
class frmMessages final : public QWidget, private MessageListener {
    Q_OBJECT

public:
    // Listens to the list until it dies. MessageWindow of the settings tells whether new lines bring it up.
    frmMessages(MessageList& messages, const Settings& settings, const Labels& texts, QWidget* parent = nullptr);
    ~frmMessages() override;

    void ShowOnRequest();
    void SetTexts(const Labels& texts);  // of another language

Q_SIGNALS:
    void MessagesArrived();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void MessageAdded(std::size_t index) override;
    void MessagesCleared() override;
    void ShowMessages() override;
    void Beep() override;

    void MakeList();
    void MakeMenu();
    void FitColumns();
    void CatchUp();
    void Copy() const;

    MessageList& messages_;
    const Settings& settings_;
    MessageModel model_;
    QTimer later_;  // new lines come into sight when it ends
    QTableView* lvwMessages_;
    QMenu* mnuPopup_;
    QAction *mnuPopCopy_, *mnuPopSelectAll_;
};

}  // namespace folioscope

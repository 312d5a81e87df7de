#pragma once

#include <QPoint>
#include <QStringList>
#include <QTextCharFormat>
#include <QTextEdit>

#include <functional>
#include <optional>
#include <string_view>

#include "base/labels.h"
#include "shell/marked_text.h"

namespace folioscope {

// Shows the property text of a node. A click, wherever it falls, opens the address that the text's links make when
// they are joined; so does the return key.
class PropertyPane final : public QTextEdit {
    Q_OBJECT

public:
    using Opener = std::function<bool(const QString& address)>;

    explicit PropertyPane(const Labels& texts, QWidget* parent = nullptr);

    // Shows a text with its markers in effect, from its start.
    void ShowPropertyText(std::string_view marked);
    // All characters that stand in blue, one after the other.
    const QString& LinkText() const { return link_; }

    void SetTexts(const Labels& texts);  // of another language
    // In place of the system's browser. It tells whether it has taken the address.
    void SetOpener(Opener opener) { opener_ = std::move(opener); }

Q_SIGNALS:
    void FilesDropped(const QStringList& paths);
    void LinkNotOpened(const QString& address);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void Fill();
    QTextCharFormat FormatOf(const TextLook& look) const;
    bool IsLinkAt(const QPoint& place) const;
    void OpenLinks();

    Labels texts_;
    Opener opener_;
    QString marked_, link_;
    std::optional<QPoint> pressed_;  // where the left button went down
};

}  // namespace folioscope

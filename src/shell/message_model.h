#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QPalette>

#include <array>

#include "base/labels.h"
#include "document/messages.h"

namespace folioscope {

// A message list as a view wants it. New lines come into sight in slices, so that a run with a million faults doesn't
// tell the view a million times.
class MessageModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Source, Severity, Description, ColumnCount };

    MessageModel(const MessageList& messages, const Labels& texts, QObject* parent = nullptr);

    void CatchUp();  // takes in the lines that were added
    void Forget();   // the list has been cleared
    void SetTexts(const Labels& texts);
    // Red depends on the ground, and a line that is told in red stands in bold, too.
    void SetLook(const QPalette& palette, const QFont& font);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const MessageList& messages_;
    Labels texts_;
    QColor red_;
    QFont bold_;
    int shown_ = 0;
};

}  // namespace folioscope

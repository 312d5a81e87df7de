#include "shell/message_model.h"

#include "base/text.h"
#include "shell/marked_colours.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

constexpr Label kHeaders[MessageModel::ColumnCount] = {U("Source"), U("Severity"), U("Description")};

QString TextAt(const MessageList& messages, const Message& message, int column)
{
    switch (column) {
    case MessageModel::Source: return ToQt(NameOf(message.source));
    case MessageModel::Severity: return ToQt(NameOf(message.severity));
    default: return ToQt(OnOneLine(messages.Description(message)));
    }
}

}  // namespace

MessageModel::MessageModel(const MessageList& messages, const Labels& texts, QObject* parent)
    : QAbstractTableModel(parent), messages_(messages), texts_(texts), red_(RedOn({}))
{
    bold_.setBold(true);
    CatchUp();
}

void MessageModel::CatchUp()
{
    const int size = static_cast<int>(messages_.Size());
    if (size <= shown_) return;
    beginInsertRows({}, shown_, size - 1);
    shown_ = size;
    endInsertRows();
}

void MessageModel::Forget()
{
    beginResetModel();
    shown_ = 0;
    endResetModel();
}

void MessageModel::SetTexts(const Labels& texts)
{
    texts_ = texts;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void MessageModel::SetLook(const QPalette& palette, const QFont& font)
{
    red_ = RedOn(palette);
    bold_ = font;
    bold_.setBold(true);
    if (shown_ > 0) Q_EMIT dataChanged(index(0, 0), index(shown_ - 1, ColumnCount - 1));
}

int MessageModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shown_; }

int MessageModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant MessageModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= messages_.Size()) return {};
    const Message& message = messages_[row];
    switch (role) {
    case Qt::DisplayRole: return TextAt(messages_, message, index.column());
    case Qt::ToolTipRole: return index.column() == Description ? TextAt(messages_, message, Description) : QVariant();
    case Qt::ForegroundRole: return message.bolHighlight ? QVariant(red_) : QVariant();
    case Qt::FontRole: return message.bolHighlight ? QVariant(bold_) : QVariant();
    default: return {};
    }
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? ToQt(texts_, kHeaders[section]) : QVariant();
}

}  // namespace folioscope

#include "shell/access_keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QSet>

namespace folioscope {

namespace {

// Where the sign of the access key stands, or -1.
qsizetype PlaceOfSign(const QString& text)
{
    for (qsizetype at = text.indexOf(QLatin1Char('&')); at >= 0; at = text.indexOf(QLatin1Char('&'), at + 2))
        if (at + 1 < text.size() && text[at + 1] != QLatin1Char('&')) return at;
    return -1;
}

QChar KeyOf(const QString& text)
{
    const qsizetype at = PlaceOfSign(text);
    return at < 0 ? QChar() : text[at + 1].toUpper();
}

bool IsPlainLetter(QChar c) { return c.unicode() < 128 && c.isLetter(); }

// The place of the letter to mark, or -1. First those are tried that begin a word.
qsizetype PlaceOfKey(const QString& text, const QSet<QChar>& taken)
{
    for (const bool anywhere : {false, true})
        for (qsizetype at = 0; at < text.size(); ++at) {
            if (text[at] == QLatin1Char('\t')) break;  // a shortcut follows
            const bool begins = at == 0 || text[at - 1].isSpace();
            if ((begins || anywhere) && IsPlainLetter(text[at]) && !taken.contains(text[at].toUpper())) return at;
        }
    return -1;
}

template <class Items> void GiveKeys(const Items& items)
{
    QSet<QChar> taken;
    for (auto* const item : items) {
        const QString text = item->text();
        const QChar key = KeyOf(text);
        if (!key.isNull() && taken.contains(key)) item->setText(QString(text).remove(PlaceOfSign(text), 1));
        taken.insert(key);
    }
    for (auto* const item : items) {
        QString text = item->text();
        if (!KeyOf(text).isNull()) continue;
        const qsizetype at = PlaceOfKey(text, taken);
        if (at < 0) continue;
        taken.insert(text[at].toUpper());
        item->setText(text.insert(at, QLatin1Char('&')));
    }
}

}  // namespace

void GiveAccessKeys(QWidget& window) { GiveKeys(window.findChildren<QAbstractButton*>()); }

void GiveAccessKeys(QMenu& menu) { GiveKeys(menu.actions()); }

}  // namespace folioscope

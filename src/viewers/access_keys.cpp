#include "viewers/access_keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

#include <utility>

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

void GiveKeys(QStringList& texts, QSet<QChar> taken)
{
    for (QString& text : texts) {
        const QChar key = KeyOf(text);
        if (!key.isNull() && taken.contains(key)) text.remove(PlaceOfSign(text), 1);
        taken.insert(key);
    }
    for (QString& text : texts) {
        if (!KeyOf(text).isNull()) continue;
        const qsizetype at = PlaceOfKey(text, taken);
        if (at < 0) continue;
        taken.insert(text[at].toUpper());
        text.insert(at, QLatin1Char('&'));
    }
}

// What stands on a part of a window: the property's name, or null if it takes no access key.
const char* CaptionOf(const QWidget& part)
{
    if (qobject_cast<const QAbstractButton*>(&part) != nullptr) return "text";
    if (const auto* const label = qobject_cast<const QLabel*>(&part))
        return label->buddy() != nullptr && !KeyOf(label->text()).isNull() ? "text" : nullptr;
    if (const auto* const frame = qobject_cast<const QGroupBox*>(&part))
        return !KeyOf(frame->title()).isNull() ? "title" : nullptr;
    return nullptr;
}

}  // namespace

void GiveAccessKeys(QWidget& window)
{
    QList<QWidget*> buttons;
    for (auto* const button : window.findChildren<QAbstractButton*>()) buttons += button;
    GiveAccessKeys(buttons, {});
}

void GiveAccessKeys(QMenu& menu)
{
    QStringList texts;
    for (const QAction* const entry : menu.actions()) texts += entry->text();
    GiveKeys(texts, {});
    for (QAction* const entry : menu.actions()) entry->setText(texts.takeFirst());
}

void GiveAccessKeys(const QList<QWidget*>& parts, QSet<QChar> taken)
{
    QList<QWidget*> captioned;
    QStringList texts;
    for (QWidget* const part : parts) {
        const char* const caption = CaptionOf(*part);
        if (caption == nullptr) continue;
        captioned += part;
        texts += part->property(caption).toString();
    }
    QStringList given = texts;
    GiveKeys(given, std::move(taken));
    for (qsizetype i = 0; i < texts.size(); ++i)
        if (given[i] != texts[i]) captioned[i]->setProperty(CaptionOf(*captioned[i]), given[i]);
}

QSet<QChar> AccessKeysOf(const QList<QWidget*>& parts)
{
    QSet<QChar> keys;
    for (const QWidget* const part : parts)
        if (const char* const caption = CaptionOf(*part))
            if (const QChar key = KeyOf(part->property(caption).toString()); !key.isNull()) keys.insert(key);
    return keys;
}

}  // namespace folioscope

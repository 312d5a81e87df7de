#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>

#include "base/labels.h"

namespace folioscope::test {

inline constexpr std::array kLanguages = {Language::English, Language::German, Language::French};

// The focusable parts of a window that say nothing to a screen reader.
inline QStringList Nameless(QWidget& window)
{
    QStringList faults;
    for (QWidget* const part : window.findChildren<QWidget*>() + QList<QWidget*>{&window}) {
        if (part->focusPolicy() == Qt::NoFocus) continue;
        const QAccessibleInterface* const voice = QAccessible::queryAccessibleInterface(part);
        if (voice == nullptr || voice->text(QAccessible::Name).trimmed().isEmpty())
            faults += QLatin1String(part->metaObject()->className()) + QLatin1Char(' ') + part->objectName();
    }
    return faults;
}

// The letter behind the first single "&", in capitals; "" without one.
inline QString AccessKeyOf(const QString& text)
{
    for (qsizetype at = 0; at + 1 < text.size(); ++at)
        if (text[at] == QLatin1Char('&')) {
            if (text[at + 1] != QLatin1Char('&')) return text.mid(at + 1, 1).toUpper();
            ++at;
        }
    return {};
}

inline QStringList AccessKeysOf(const QStringList& texts)
{
    QStringList keys;
    for (const QString& text : texts)
        if (const QString key = AccessKeyOf(text); !key.isEmpty()) keys += key;
    return keys;
}

inline QStringList ButtonTexts(QWidget& window)
{
    QStringList texts;
    for (const auto* const button : window.findChildren<QAbstractButton*>()) texts += button->text();
    return texts;
}

inline QStringList EntryTexts(const QMenu& menu)
{
    QStringList texts;
    for (const auto* const action : menu.actions()) texts += action->text();
    return texts;
}

// A text that is wider or higher than the label or button it stands in.
inline QStringList Clipped(QWidget& window)
{
    QStringList faults;
    for (QWidget* const part : window.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<QLabel*>(part);
        if (label == nullptr && qobject_cast<QAbstractButton*>(part) == nullptr) continue;
        const bool wraps = label != nullptr && label->wordWrap();
        const int height = wraps ? label->heightForWidth(label->width()) : part->sizeHint().height();
        if (part->height() < height || (!wraps && part->width() < part->sizeHint().width()))
            faults += part->objectName();
    }
    return faults;
}

inline QPalette DarkPalette()
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Window, QColor(45, 45, 45));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    dark.setColor(QPalette::WindowText, QColor(230, 230, 230));
    return dark;
}

// How well one colour can be read on another: 1 to 21, as WCAG reckons it.
inline double Contrast(const QColor& a, const QColor& b)
{
    const auto light = [](const QColor& colour) {
        const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double first = light(a) + 0.05, second = light(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

}  // namespace folioscope::test

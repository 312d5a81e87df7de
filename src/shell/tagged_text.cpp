#include "shell/tagged_text.h"

#include <algorithm>
#include <cmath>

#include "document/structure_tree.h"

namespace folioscope {

namespace {

constexpr std::string_view kBold = "<b>", kColor = "<color=", kRedName = "clred";
constexpr double kReadable = 4.5;  // WCAG 2, level AA
constexpr QRgb kRed = 0xFFD00000;

QString ForTheEye(std::string_view text)
{
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& character : shown)
        if (character.category() == QChar::Other_Control) character = u' ';
    return shown;
}

void TakeTag(TaggedText& tagged, std::string_view tag)
{
    if (tag == kBold) {
        tagged.bold = true;
        return;
    }
    if (!tag.starts_with(kColor)) return;
    const std::string_view name = tag.substr(kColor.size(), tag.size() - kColor.size() - 1);
    if (name == kRedName) {
        tagged.red = true;
        tagged.color = QColor::fromRgb(kRed);
    } else if (const QLatin1String word(name.data(), static_cast<qsizetype>(name.size()));
               QColor::isValidColorName(word)) {
        tagged.color = QColor::fromString(word);
    }
}

double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor Mixed(const QColor& from, const QColor& to, double share)
{
    const auto part = [share](double a, double b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

}  // namespace

TaggedText ParseTaggedText(std::string_view nodeText)
{
    TaggedText tagged;
    const std::string_view text = WithoutTags(nodeText);
    nodeText.remove_suffix(text.size());
    while (!nodeText.empty()) {
        const std::size_t length = nodeText.find('>') + 1;
        TakeTag(tagged, nodeText.substr(0, length));
        nodeText.remove_prefix(length);
    }
    tagged.text = ForTheEye(text);
    return tagged;
}

QString PlainNodeText(std::string_view nodeText) { return ForTheEye(WithoutTags(nodeText)); }

double ContrastOf(const QColor& one, const QColor& other)
{
    const double a = Luminance(one) + 0.05, b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor ReadableOn(const QColor& ground, const QColor& color)
{
    const QColor away = ContrastOf(ground, Qt::black) > ContrastOf(ground, Qt::white) ? Qt::black : Qt::white;
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
        const QColor mixed = Mixed(color, away, static_cast<double>(step) / kSteps);
        if (ContrastOf(ground, mixed) >= kReadable) return mixed;
    }
    return away;
}

}  // namespace folioscope

// Access keys: where the texts bring none, or bring one twice, they are given.

#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "viewers/access_keys.h"

namespace folioscope {

class AccessKeysTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void areGivenWhereNoneIs()
    {
        QWidget window;
        const auto button = [&](const char* text) { return new QPushButton(QString::fromUtf8(text), &window); };
        auto* const first = button("Open");
        auto* const second = button("&Open all");
        auto* const third = button("O && P");
        auto* const fourth = button("Öo");
        auto* const fifth = button("An o");
        GiveAccessKeys(window);
        QCOMPARE(second->text(), QStringLiteral("&Open all"));
        QCOMPARE(first->text(), QStringLiteral("O&pen"));
        QCOMPARE(third->text(), QStringLiteral("O && P"));  // both of its letters are taken
        QCOMPARE(fourth->text(), QString::fromUtf8("Öo"));
        QCOMPARE(fifth->text(), QStringLiteral("&An o"));
    }

    void ofAMenuAreToldApart()
    {
        QMenu menu;
        for (const char* const text : {"&Copy", "&Close", "Cut\tCtrl+X"}) menu.addAction(QLatin1String(text));
        GiveAccessKeys(menu);
        QStringList texts;
        for (const QAction* const entry : menu.actions()) texts += entry->text();
        QCOMPARE(texts, QStringList({"&Copy", "C&lose", "C&ut\tCtrl+X"}));
    }

    void ofLabelsAndFramesAreToldApart()
    {
        QWidget window;
        auto* const frame = new QGroupBox("&Size", &window);
        auto* const plainFrame = new QGroupBox("Paper", &window);
        auto* const button = new QPushButton("Width", &window);
        auto* const label = new QLabel("&Width of it", &window);
        auto* const plainLabel = new QLabel("Salt && pepper", &window);
        auto* const same = new QLabel("&Shape", &window);
        label->setBuddy(button);
        same->setBuddy(button);
        GiveAccessKeys({frame, plainFrame, label, plainLabel, same, button}, {QChar(QLatin1Char('W'))});
        QCOMPARE(frame->title(), QStringLiteral("&Size"));
        QCOMPARE(plainFrame->title(), QStringLiteral("Paper"));
        QCOMPARE(label->text(), QStringLiteral("Width &of it"));
        QCOMPARE(plainLabel->text(), QStringLiteral("Salt && pepper"));
        QCOMPARE(same->text(), QStringLiteral("S&hape"));
        QCOMPARE(button->text(), QStringLiteral("W&idth"));
        QCOMPARE(AccessKeysOf({frame, plainFrame, label, plainLabel, same, button}),
                 QSet<QChar>({QLatin1Char('S'), QLatin1Char('O'), QLatin1Char('H'), QLatin1Char('I')}));
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::AccessKeysTest)
#include "access_keys_test.moc"

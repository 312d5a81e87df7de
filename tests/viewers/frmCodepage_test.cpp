// The list of code pages: what it shows, what it gives, and how it is used with the keyboard.

#include <QAbstractItemView>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "support/window_checks.h"
#include "viewers/frmCodepage.h"

namespace folioscope {

using namespace test;

class FrmCodepageTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsAllPagesInTheirOrder();
    void selectsThePageInForce_data();
    void selectsThePageInForce();
    void givesTheChosenPage();
    void aDoubleClickIsOK();
    void enterIsOK();
    void givesNothingWhenItIsCancelled_data();
    void givesNothingWhenItIsCancelled();
    void hasNothingToGiveForAnUnknownPage();
    void findsWhatIsTyped();
    void showsTheWordsOfItsCaller();
    void fillsItsListAnewEachTime();
    void cutsNoLineOff();
    void eachControlHasAnAccessibleName();

private:
    static void Open(frmCodepage& dialog, int codepage)
    {
        dialog.SetCaptions("Code page for NOP-SF's", "Code &page", "&OK", "&Cancel");
        dialog.Init(codepage);
        dialog.show();
    }
    static QListWidget& List(const frmCodepage& dialog) { return *dialog.findChild<QListWidget*>("lstCodepage"); }
    static int NumberAt(const QListWidget& list, int row) { return list.item(row)->data(Qt::UserRole).toInt(); }
    static void Click(frmCodepage& dialog, const char* name) { dialog.findChild<QPushButton*>(name)->click(); }
};

void FrmCodepageTest::listsAllPagesInTheirOrder()
{
    frmCodepage dialog;
    dialog.Init(37);
    const QListWidget& list = List(dialog);
    QCOMPARE(list.count(), 81);
    for (int row = 1; row < list.count(); ++row) QVERIFY(NumberAt(list, row - 1) < NumberAt(list, row));

    QCOMPARE(NumberAt(list, 0), 37);
    QCOMPARE(list.item(0)->text(), QString("037, EBCDIC, USA/Canada"));
    QCOMPARE(NumberAt(list, 80), 1275);
    QCOMPARE(list.item(80)->text(), QString("1275, ASCII, Apple Latin-1"));
    const auto unicode = list.findItems("1200, ", Qt::MatchStartsWith);
    QCOMPARE(unicode.size(), 1);
    QCOMPARE(unicode[0]->data(Qt::UserRole).toInt(), 1200);
}

void FrmCodepageTest::selectsThePageInForce_data()
{
    QTest::addColumn<int>("codepage");
    for (const int codepage : {37, 500, 1200, 1275}) QTest::addRow("%d", codepage) << codepage;
}

void FrmCodepageTest::selectsThePageInForce()
{
    QFETCH(const int, codepage);
    frmCodepage dialog;
    Open(dialog, codepage);
    const QListWidget& list = List(dialog);
    QCOMPARE(NumberAt(list, list.currentRow()), codepage);
    QVERIFY(list.currentItem()->isSelected());
    QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.currentItem())));
}

void FrmCodepageTest::givesTheChosenPage()
{
    frmCodepage dialog;
    Open(dialog, 37);
    List(dialog).setCurrentRow(80);
    QCOMPARE(dialog.Result(), 0);
    Click(dialog, "btnOK");
    QCOMPARE(dialog.Result(), 1275);
    QVERIFY(!dialog.isVisible());
}

void FrmCodepageTest::aDoubleClickIsOK()
{
    frmCodepage dialog;
    Open(dialog, 37);
    QListWidget& list = List(dialog);
    const QPoint second = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    QVERIFY(dialog.isVisible());
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(dialog.Result(), 273);
    QVERIFY(!dialog.isVisible());
}

void FrmCodepageTest::enterIsOK()
{
    frmCodepage dialog;
    Open(dialog, 500);
    QTest::keyClick(&List(dialog), Qt::Key_Return);
    QCOMPARE(dialog.Result(), 500);
    QVERIFY(!dialog.isVisible());
}

void FrmCodepageTest::givesNothingWhenItIsCancelled_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"button", "escape", "close"}) QTest::newRow(way) << way;
}

void FrmCodepageTest::givesNothingWhenItIsCancelled()
{
    QFETCH(const QString, way);
    frmCodepage dialog;
    Open(dialog, 500);
    if (way == "button") Click(dialog, "btnCancel");
    if (way == "escape") QTest::keyClick(&List(dialog), Qt::Key_Escape);
    if (way == "close") dialog.close();
    QCOMPARE(dialog.Result(), 0);
    QVERIFY(!dialog.isVisible());
}

void FrmCodepageTest::hasNothingToGiveForAnUnknownPage()
{
    frmCodepage dialog;
    Open(dialog, 38);
    QVERIFY(!dialog.findChild<QPushButton*>("btnOK")->isEnabled());
    dialog.accept();
    QCOMPARE(dialog.Result(), 0);
    List(dialog).setCurrentRow(0);
    QVERIFY(dialog.findChild<QPushButton*>("btnOK")->isEnabled());
}

void FrmCodepageTest::findsWhatIsTyped()
{
    frmCodepage dialog;
    Open(dialog, 37);
    QListWidget& list = List(dialog);
    QTest::keyClicks(&list, "1252");
    QCOMPARE(NumberAt(list, list.currentRow()), 1252);
    QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.currentItem())));
}

void FrmCodepageTest::showsTheWordsOfItsCaller()
{
    frmCodepage dialog;
    Open(dialog, 37);
    QCOMPARE(dialog.windowTitle(), QString("Code page for NOP-SF's"));
    QCOMPARE(dialog.findChild<QGroupBox*>("fraCodepage")->title(), QString("Code &page"));
    QCOMPARE(dialog.findChild<QPushButton*>("btnOK")->text(), QString("&OK"));
    QCOMPARE(dialog.findChild<QPushButton*>("btnCancel")->text(), QString("&Cancel"));
    QCOMPARE(List(dialog).accessibleName(), QString("Code page"));
}

void FrmCodepageTest::fillsItsListAnewEachTime()
{
    frmCodepage dialog;
    Open(dialog, 37);
    Click(dialog, "btnOK");
    dialog.Init(500);
    QCOMPARE(dialog.Result(), 0);
    QCOMPARE(List(dialog).count(), 81);
    QCOMPARE(NumberAt(List(dialog), List(dialog).currentRow()), 500);
}

void FrmCodepageTest::cutsNoLineOff()
{
    frmCodepage dialog;
    Open(dialog, 37);
    const QListWidget& list = List(dialog);
    QVERIFY(list.viewport()->width() >= list.sizeHintForColumn(0));
    QCOMPARE(Clipped(dialog), QStringList());
}

void FrmCodepageTest::eachControlHasAnAccessibleName()
{
    frmCodepage dialog;
    Open(dialog, 37);
    QCOMPARE(Nameless(dialog), QStringList());
}

}  // namespace folioscope

QTEST_MAIN(folioscope::FrmCodepageTest)
#include "frmCodepage_test.moc"

#include "viewers/print_pages.h"

#include <QDir>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cmath>

#include "viewers/page_geometry.h"
#include "viewers/preview_pane.h"
#include "viewers/scripted_engine.h"
#include "viewers/ve_view.h"

namespace folioscope {
namespace {

// A pane whose printer's dialog is played by the test. It prints into a file.
struct Printing {
    explicit Printing(test::Script start = {}) : script(std::move(start)), engine(script), pane(nullptr)
    {
        pane.SetEngine(&engine, &log, QStringLiteral("fsv"));
        pane.choosePrinter = [this](QPrinter& printer, int maxPage, QWidget*) {
            asked = {static_cast<int>(printer.printRange()), printer.fromPage(), printer.toPage(), maxPage};
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            return choose(printer);
        };
        pane.Open(QStringLiteral("a.afp"), false);
        script.calls.clear();
    }
    QStringList Drawn() const
    {
        QStringList pages;
        for (const QString& call : script.calls)
            if (call.startsWith("draw")) pages += call.section(' ', 1, 1);
        return pages;
    }

    QTemporaryDir folder;
    QString path = folder.filePath("out.pdf");
    test::Script script;
    test::ScriptedEngine engine;
    test::MessageLog log;
    PreviewPane pane;
    std::function<bool(QPrinter&)> choose = [](QPrinter&) { return true; };
    QList<int> asked;  // print range, from, to, largest page
};

test::Script WithPages(int pages)
{
    test::Script script;
    script.pages = pages;
    return script;
}

qsizetype PagesOfPdf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return -1;
    return file.readAll().count("/Type /Page\n");
}

}  // namespace

class PrintPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ProposesTheFolderOfTheDocument()
    {
        const QString before = QDir::currentPath();
        QTemporaryDir folder;
        test::Script script = WithPages(1);
        test::ScriptedEngine engine(script);
        PreviewPane pane(nullptr);
        pane.SetEngine(&engine, nullptr, QStringLiteral("fsv"));
        QStringList folders;
        pane.choosePrinter = [&](QPrinter&, int, QWidget*) {
            folders += QDir::currentPath();
            return false;
        };
        pane.Open(folder.filePath("a.afp"), false);
        pane.ViewPrint();
        QCOMPARE(folders, QStringList(QDir(folder.path()).canonicalPath()));
        QCOMPARE(QDir::currentPath(), before);
    }

    void ProposesTheCurrentPage()
    {
        Printing printing(WithPages(12));
        printing.pane.View().GoToPage(5);
        printing.pane.ViewPrint();
        QCOMPARE(printing.asked, (QList<int>{QPrinter::PageRange, 5, 5, 12}));
        QCOMPARE(printing.Drawn(), QStringList{"5"});
        QCOMPARE(PagesOfPdf(printing.path), 1);
    }

    void PresetsThePlatformsDialog()
    {
        test::Script script = WithPages(12);
        test::ScriptedEngine engine(script);
        PreviewPane pane(nullptr);
        pane.SetEngine(&engine, nullptr, {});
        pane.Open({}, false);
        pane.View().GoToPage(5);
        QList<int> seen;
        QTimer::singleShot(0, &pane, [&] {
            auto* const dialog = pane.findChild<QPrintDialog*>();
            if (dialog == nullptr) return;
            seen = {dialog->minPage(),
                    dialog->maxPage(),
                    dialog->fromPage(),
                    dialog->toPage(),
                    static_cast<int>(dialog->printRange()),
                    dialog->testOption(QAbstractPrintDialog::PrintPageRange),
                    dialog->testOption(QAbstractPrintDialog::PrintSelection)};
            dialog->reject();
        });
        pane.ViewPrint();
        QCOMPARE(seen, (QList<int>{1, 12, 5, 5, QAbstractPrintDialog::PageRange, 1, 0}));
        QVERIFY(script.calls.filter("draw").isEmpty());
    }

    void PrintsTheChosenPages()
    {
        Printing printing(WithPages(12));
        printing.choose = [](QPrinter& printer) {
            printer.setFromTo(3, 6);
            return true;
        };
        printing.pane.ViewPrint();
        QCOMPARE(printing.Drawn(), (QStringList{"3", "4", "5", "6"}));
        QCOMPARE(PagesOfPdf(printing.path), 4);
    }

    void PrintsSeveralStretches()
    {
        Printing printing(WithPages(12));
        printing.choose = [](QPrinter& printer) {
            printer.setPageRanges(QPageRanges::fromString("2-3,7,11-40,50"));
            return true;
        };
        printing.pane.ViewPrint();
        QCOMPARE(printing.Drawn(), (QStringList{"2", "3", "7", "11", "12"}));
        QCOMPARE(PagesOfPdf(printing.path), 5);
    }

    void PrintsNothingBeyondTheLastPage()
    {
        Printing printing(WithPages(12));
        printing.choose = [](QPrinter& printer) {
            printer.setFromTo(13, 20);
            return true;
        };
        printing.pane.ViewPrint();
        QCOMPARE(printing.script.calls, QStringList{"find all"});
        QVERIFY(printing.log.messages.empty());
    }

    void PrintsAllPagesIfNoneAreChosen()
    {
        Printing printing(WithPages(4));
        printing.pane.View().GoToPage(3);
        printing.choose = [](QPrinter& printer) {
            printer.setPrintRange(QPrinter::AllPages);
            return true;
        };
        printing.pane.ViewPrint();
        QCOMPARE(printing.Drawn(), (QStringList{"1", "2", "3", "4"}));
        QCOMPARE(PagesOfPdf(printing.path), 4);
    }

    void KeepsTheOrderOfTheJob()
    {
        Printing printing(WithPages(2));
        printing.choose = [](QPrinter& printer) {
            printer.setPrintRange(QPrinter::AllPages);
            return true;
        };
        printing.pane.ViewPrint();
        QStringList calls;
        for (const QString& call : printing.script.calls) calls += call.section(" scale", 0, 0);
        QCOMPARE(calls, (QStringList{"find all", "begin fsv", "start 1", "draw 1", "end 1", "start 2", "draw 2",
                                     "end 2", "release"}));
        QVERIFY(printing.log.messages.empty());
    }

    void PrintsNothingIfItIsCancelled()
    {
        Printing printing;
        printing.choose = [](QPrinter&) { return false; };
        printing.pane.ViewPrint();
        QCOMPARE(printing.script.calls, QStringList{"find all"});
        QVERIFY(!QFile::exists(printing.path));
        QVERIFY(printing.log.messages.empty());
    }

    void AsksForNothingWithoutPages()
    {
        Printing empty(WithPages(0));
        empty.pane.ViewPrint();
        QVERIFY(empty.asked.isEmpty());
        PreviewPane closed(nullptr);
        closed.ViewPrint();
    }

    void DrawsUndistortedAndAsLargeAsThePaper_data()
    {
        QTest::addColumn<QSizeF>("page");
        QTest::newRow("tall") << QSizeF(300, 3000);
        QTest::newRow("wide") << QSizeF(3000, 300);
        QTest::newRow("small") << QSizeF(10, 12);
        QTest::newRow("large") << QSizeF(72'000, 72'000);
    }
    void DrawsUndistortedAndAsLargeAsThePaper()
    {
        QFETCH(QSizeF, page);
        test::Script script;
        script.sizes = {page};
        Printing printing(script);
        QSizeF paper;
        printing.choose = [&](QPrinter& printer) {
            paper = printer.pageRect(QPrinter::DevicePixel).size();
            return true;
        };
        printing.pane.ViewPrint();
        QCOMPARE(printing.script.transforms.size(), 1U);
        const QTransform placed = printing.script.transforms.front();
        QCOMPARE(placed.map(QPointF(0, 0)), QPointF(0, 0));
        QCOMPARE(placed.m11(), placed.m22());
        const double scale = printing.script.calls.filter("draw").front().section(' ', 3, 3).toDouble();
        const QSizeF drawn = page * scale * placed.m11();
        const double share = std::max(drawn.width() / paper.width(), drawn.height() / paper.height());
        QVERIFY2(std::abs(share - 1) < 0.001, qPrintable(QString::number(share)));
    }

    void ScalesEachPageByItself()
    {
        test::Script script;
        script.sizes = {QSizeF(612, 792), QSizeF(1224, 1584)};
        script.pages = 2;
        Printing printing(script);
        printing.choose = [](QPrinter& printer) {
            printer.setPrintRange(QPrinter::AllPages);
            return true;
        };
        printing.pane.ViewPrint();
        const QStringList drawn = printing.script.calls.filter("draw");
        QCOMPARE(drawn.size(), 2);
        const double first = drawn[0].section(' ', 3, 3).toDouble(), second = drawn[1].section(' ', 3, 3).toDouble();
        QVERIFY(std::abs(first / second - 2) < 0.001);
    }

    void IgnoresTheViewsRotation()
    {
        Printing printing;
        printing.pane.ViewRotate(1);
        printing.pane.ViewPrint();
        QVERIFY(printing.script.calls.filter("draw").front().endsWith("rotation 0"));
    }

    void TellsThatAPrinterTakesNothing()
    {
        Printing printing;
        printing.path = printing.folder.filePath("no such folder/out.pdf");
        printing.pane.SetTexts(Labels(Language::German));
        QSignalSpy failed(&printing.pane, &PreviewPane::Failed);
        printing.pane.ViewPrint();
        QCOMPARE(printing.script.calls, QStringList{"find all"});
        QCOMPARE(failed.count(), 0);
        QCOMPARE(printing.log.messages.size(), 1U);
        const test::LoggedMessage& message = printing.log.messages.front();
        QCOMPARE(message.severity, 3);
        QCOMPARE(message.message, QString("Die Seiten konnten nicht gedruckt werden: %1 nimmt keinen Druckauftrag an. "
                                          "Prüfen Sie, ob der Drucker bereit ist, oder wählen Sie einen anderen.")
                                      .arg(printing.path));
    }

    void ReleasesThePrinterIfTheEngineThrows()
    {
        test::Script script;
        script.drawingThrows = true;
        Printing printing(script);
        QSignalSpy failed(&printing.pane, &PreviewPane::Failed);
        printing.pane.ViewPrint();
        QCOMPARE(failed.count(), 1);
        QCOMPARE(printing.script.calls.last(), "release");
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::PrintPagesTest)
#include "print_pages_test.moc"

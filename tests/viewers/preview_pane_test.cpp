#include "viewers/preview_pane.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <climits>
#include <random>

#include "viewers/scripted_engine.h"
#include "viewers/ve_view.h"

namespace folioscope {

using test::Fault;

namespace {

using PageEnds = std::deque<std::uint32_t>;

// A pane that is on the screen, with a document of three pages; its pages end at the nodes 10, 20 and 30.
struct Shown {
    explicit Shown(test::Script start = {}) : script(std::move(start)), engine(script), pane(nullptr)
    {
        pane.SetEngine(&engine, &log, QStringLiteral("fsv"));
        pane.pageEnds = [this] { return &pageEnds; };
        pane.isSearchTermEmpty = [this] { return termEmpty; };
        pane.resize(300, 400);
        pane.show();
        timer = pane.findChild<QTimer*>("ViewTimer");
        timer->setInterval(3'600'000);  // it runs out when a test says so
    }
    bool Open() { return pane.Open(QStringLiteral("a.afp"), true); }
    void RunOut()
    {
        QVERIFY(timer->isActive());
        QSignalSpy ran(timer, &QTimer::timeout);
        timer->setInterval(0);
        QVERIFY(ran.wait());
        timer->setInterval(3'600'000);
    }
    void UserTurnsTo(int page) { pane.View().GoToPage(page); }

    test::Script script;
    test::ScriptedEngine engine;
    test::MessageLog log;
    PageEnds pageEnds = {10, 20, 30};
    bool termEmpty = true;
    PreviewPane pane;
    QTimer* timer;
};

// The page as the walk from the last entry finds it; 0 for none.
int PageByWalking(const PageEnds& lngPageEnds, std::uint32_t node)
{
    std::size_t i = lngPageEnds.size();
    while (i > 0 && lngPageEnds[i - 1] >= node) --i;
    return i < lngPageEnds.size() ? static_cast<int>(i) + 1 : 0;
}

}  // namespace

class PreviewPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OpensOnceAndKeepsTheDocument()
    {
        Shown shown;
        QVERIFY(shown.Open());
        QCOMPARE(shown.script.calls, QStringList{"open a.afp 1"});
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
        QCOMPARE(shown.pane.View().FitMode(), int(kFitWholePage));
        QCOMPARE(shown.pane.View().Mode(), 1);
        shown.UserTurnsTo(2);
        shown.pane.hide();
        shown.pane.show();
        QVERIFY(shown.pane.Open(QStringLiteral("b.afp"), false));
        QCOMPARE(shown.script.calls.filter("open"), QStringList{"open a.afp 1"});
        QCOMPARE(shown.pane.View().CurrentPage(), 2);
        QCOMPARE(shown.script.documents, 1);
    }

    void LetsTheDocumentGoWithItself()
    {
        test::Script script;
        test::ScriptedEngine engine(script);
        {
            PreviewPane pane(nullptr);
            pane.SetEngine(&engine, nullptr, {});
            QVERIFY(pane.Open({}, false));
            QCOMPARE(script.documents, 1);
        }
        QCOMPARE(script.documents, 0);
    }

    void TellsAFailedOpening_data()
    {
        QTest::addColumn<int>("fault");
        QTest::newRow("refused") << static_cast<int>(Fault::Refuses);
        QTest::newRow("thrown") << static_cast<int>(Fault::Throws);
    }
    void TellsAFailedOpening()
    {
        QFETCH(int, fault);
        test::Script script;
        script.opening = static_cast<Fault>(fault);
        Shown shown(script);
        shown.pane.SetTexts(Labels(Language::German));
        QSignalSpy failed(&shown.pane, &PreviewPane::Failed);
        QVERIFY(!shown.Open());
        QCOMPARE(failed.count(), 1);
        QVERIFY(shown.pane.View().Line().startsWith("Diese Datei kann wegen eines Problems im Viewer"));
        QVERIFY(shown.pane.View().Line().contains("\r\nBitte "));
        shown.pane.TurnToPageOf(15, shown.pageEnds);
        shown.pane.ViewPrint();
        // The next showing tries again.
        shown.script.opening = Fault::None;
        QVERIFY(shown.Open());
        QCOMPARE(failed.count(), 1);
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
    }

    void FailsWithoutAnEngine()
    {
        PreviewPane pane(nullptr);
        QSignalSpy failed(&pane, &PreviewPane::Failed);
        QVERIFY(!pane.Open({}, false));
        QCOMPARE(failed.count(), 1);
    }

    void FollowsTheTree_data()
    {
        QTest::addColumn<uint>("node");
        QTest::addColumn<int>("page");  // from page 2 on
        QTest::newRow("the root") << 0U << 1;
        QTest::newRow("in the first page") << 9U << 1;
        QTest::newRow("the first page's end") << 10U << 1;
        QTest::newRow("behind it") << 11U << 2;
        QTest::newRow("the second page's end") << 20U << 2;
        QTest::newRow("in the last page") << 21U << 3;
        QTest::newRow("the last page's end") << 30U << 3;
        QTest::newRow("behind the last page") << 31U << 2;
        QTest::newRow("far behind") << UINT_MAX << 2;
    }
    void FollowsTheTree()
    {
        QFETCH(uint, node);
        QFETCH(int, page);
        Shown shown;
        QVERIFY(shown.Open());
        shown.UserTurnsTo(2);
        shown.timer->stop();
        shown.pane.TurnToPageOf(node, shown.pageEnds);
        QCOMPARE(shown.pane.View().CurrentPage(), page);
        QVERIFY(!shown.timer->isActive());  // the tree isn't turned back
    }

    void FindsThePageThatAWalkFinds()
    {
        Shown shown;
        shown.script.pages = 40;
        QVERIFY(shown.Open());
        std::mt19937 random(7);
        for (int round = 0; round < 200; ++round) {
            PageEnds ends;
            for (std::uint32_t end = 0; ends.size() < random() % 40; ends.push_back(end)) end += 1 + random() % 5;
            const std::uint32_t node = random() % 120;
            const int before = shown.pane.View().CurrentPage(), page = PageByWalking(ends, node);
            shown.pane.TurnToPageOf(node, ends);
            QCOMPARE(shown.pane.View().CurrentPage(), page == 0 ? before : page);
        }
    }

    void StaysWhereItIsWhileItIsHidden()
    {
        Shown shown;
        QVERIFY(shown.Open());
        shown.pane.hide();
        shown.pane.TurnToPageOf(15, shown.pageEnds);
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
        shown.pane.show();
        shown.pane.TurnToPageOf(15, {});
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
        shown.pane.TurnToPageOf(15, shown.pageEnds);
        QCOMPARE(shown.pane.View().CurrentPage(), 2);
    }

    void StaysWhereItIsInAFrameThatIsHidden()
    {
        Shown shown;
        QWidget window;
        auto* const frame = new QFrame(&window);
        shown.pane.setParent(frame);
        shown.pane.show();
        QVERIFY(shown.Open());
        window.show();
        frame->hide();
        shown.pane.TurnToPageOf(15, shown.pageEnds);
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
        frame->show();
        shown.pane.TurnToPageOf(15, shown.pageEnds);
        QCOMPARE(shown.pane.View().CurrentPage(), 2);
        shown.pane.setParent(nullptr);
    }

    void SelectsTheEndOfThePageAfterAWhile()
    {
        Shown shown;
        QVERIFY(shown.Open());
        QSignalSpy wanted(&shown.pane, &PreviewPane::PageEndWanted);
        QVERIFY(!shown.timer->isActive());  // the first page asks for nothing
        shown.UserTurnsTo(2);
        QCOMPARE(wanted.count(), 0);
        shown.RunOut();
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(wanted[0][0].toUInt(), 20U);
        QVERIFY(!shown.timer->isActive());
    }

    void WaitsASecond() { QCOMPARE(PreviewPane(nullptr).findChild<QTimer*>("ViewTimer")->interval(), 1000); }

    void SelectsOnceAfterABurst()
    {
        Shown shown;
        QVERIFY(shown.Open());
        QSignalSpy wanted(&shown.pane, &PreviewPane::PageEndWanted);
        shown.UserTurnsTo(2);
        QTest::qWait(20);
        const int left = shown.timer->remainingTime();
        shown.UserTurnsTo(3);
        QVERIFY(shown.timer->remainingTime() > left);  // the time begins anew
        shown.UserTurnsTo(2);
        shown.UserTurnsTo(3);
        shown.RunOut();
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(wanted[0][0].toUInt(), 30U);
    }

    void SelectsNothingBeyondTheKnownEnds()
    {
        Shown shown;
        shown.pageEnds = {10, 20};
        QVERIFY(shown.Open());
        QSignalSpy wanted(&shown.pane, &PreviewPane::PageEndWanted);
        shown.UserTurnsTo(3);
        shown.RunOut();
        QCOMPARE(wanted.count(), 0);
        shown.UserTurnsTo(2);
        shown.RunOut();
        QCOMPARE(wanted.count(), 1);
        shown.pane.pageEnds = [] { return nullptr; };
        shown.UserTurnsTo(1);
        shown.RunOut();
        QCOMPARE(wanted.count(), 1);
    }

    void SelectsNothingWhileThereIsASearchTerm()
    {
        Shown shown;
        shown.termEmpty = false;
        QVERIFY(shown.Open());
        shown.UserTurnsTo(2);
        QVERIFY(!shown.timer->isActive());
        shown.termEmpty = true;
        shown.UserTurnsTo(3);
        QVERIFY(shown.timer->isActive());
    }

    void TurnsNoPageForTheNodeThatItHasSelected()
    {
        Shown shown;
        QVERIFY(shown.Open());
        // A selection that would lead elsewhere: what comes of it meanwhile is passed over.
        connect(&shown.pane, &PreviewPane::PageEndWanted, &shown.pane,
                [&] { shown.pane.TurnToPageOf(5, shown.pageEnds); });
        shown.UserTurnsTo(3);
        shown.RunOut();
        QCOMPARE(shown.pane.View().CurrentPage(), 3);
        QVERIFY(!shown.timer->isActive());
        shown.pane.TurnToPageOf(5, shown.pageEnds);  // later ones count again
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
    }

    void HearsTheEngine()
    {
        Shown shown;
        QVERIFY(shown.Open());
        shown.script.listener->CurrentPageNumberChanged();
        QVERIFY(shown.timer->isActive());
    }

    void TurnsToAPageOnceItIsKnown()
    {
        Shown shown;
        shown.script.pages = 1;
        shown.script.knowsAll = false;
        QVERIFY(shown.Open());
        shown.pane.TurnToPageOf(25, shown.pageEnds);
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
        shown.script.pages = 2;
        shown.script.listener->MorePagesKnown();
        QCOMPARE(shown.pane.View().CurrentPage(), 1);
        shown.script.pages = 3;
        shown.script.listener->MorePagesKnown();
        QCOMPARE(shown.pane.View().CurrentPage(), 3);
        QVERIFY(!shown.timer->isActive());  // it is still the tree that wanted it
        shown.UserTurnsTo(2);
        QVERIFY(shown.timer->isActive());
    }

    void ForgetsALatePageWhenTheUserTurns()
    {
        Shown shown;
        shown.script.pages = 2;
        shown.script.knowsAll = false;
        QVERIFY(shown.Open());
        shown.pane.TurnToPageOf(25, shown.pageEnds);
        shown.UserTurnsTo(2);
        QVERIFY(shown.timer->isActive());
        shown.script.pages = 3;
        shown.script.listener->MorePagesKnown();
        QCOMPARE(shown.pane.View().CurrentPage(), 2);
        shown.timer->stop();
        shown.UserTurnsTo(3);
        QVERIFY(shown.timer->isActive());
    }

    void FitsThePage()
    {
        Shown shown;
        QVERIFY(shown.Open());
        for (const int other : {0, 3, -1, -3, INT_MAX}) {
            shown.pane.FitToSize(other);
            QCOMPARE(shown.pane.View().FitMode(), -1);
        }
        shown.pane.FitToSize(2);
        QCOMPARE(shown.pane.View().FitMode(), -3);
        shown.pane.FitToSize(7);
        QCOMPARE(shown.pane.View().FitMode(), -3);
        shown.pane.FitToSize(1);
        QCOMPARE(shown.pane.View().FitMode(), -1);
    }

    void TurnsAllTheWayRound()
    {
        Shown shown;
        QVERIFY(shown.Open());
        QList<int> seen;
        for (const int step : {-1, -1, -1, -1, 1, 1, 1, 1, 1}) {
            shown.pane.ViewRotate(step);
            seen += shown.pane.View().Rotation();
        }
        QCOMPARE(seen, (QList<int>{3, 2, 1, 0, 1, 2, 3, 0, 1}));
    }

    void ZoomsFrom1To3000()
    {
        Shown shown;
        QVERIFY(shown.Open());
        PreviewPane& pane = shown.pane;
        QCOMPARE(pane.PreviewZoom(), 100);
        pane.ViewZoomLevel(10);  // not from the fit's zoom
        QCOMPARE(pane.PreviewZoom(), 110);
        QCOMPARE(pane.View().Zoom(), 110.0);
        QCOMPARE(pane.View().FitMode(), 0);
        for (const int change : {-110, -111, 2891, INT_MAX, INT_MIN}) {
            pane.ViewZoomLevel(change);
            QCOMPARE(pane.PreviewZoom(), 110);
            QCOMPARE(pane.View().Zoom(), 110.0);
        }
        pane.ViewZoomLevel(2890);
        QCOMPARE(pane.PreviewZoom(), 3000);
        pane.ViewZoomLevel(10);
        QCOMPARE(pane.PreviewZoom(), 3000);
        QCOMPARE(pane.View().Zoom(), 3000.0);
        pane.ViewZoomLevel(-2999);
        QCOMPARE(pane.PreviewZoom(), 1);
        pane.ViewZoomLevel(-10);
        pane.ViewZoomLevel(-1);
        QCOMPARE(pane.PreviewZoom(), 1);
        QCOMPARE(pane.View().Zoom(), 1.0);
        pane.ViewZoom100();
        QCOMPARE(pane.PreviewZoom(), 100);
        QCOMPARE(pane.View().Zoom(), 100.0);
    }

    void ZoomsOnFromAFittedPageByTheWheel()
    {
        Shown shown;
        QVERIFY(shown.Open());
        const double fitted = shown.pane.View().Zoom();
        QVERIFY(fitted > 20 && fitted < 60);
        Q_EMIT shown.pane.View().ZoomStepWanted(2);
        QCOMPARE(shown.pane.PreviewZoom(), qRound(fitted) + 20);
        Q_EMIT shown.pane.View().ZoomStepWanted(-1);
        QCOMPARE(shown.pane.PreviewZoom(), qRound(fitted) + 10);
        Q_EMIT shown.pane.View().ZoomStepWanted(-50);
        QCOMPARE(shown.pane.PreviewZoom(), 1);
        Q_EMIT shown.pane.View().ZoomStepWanted(1000);
        QCOMPARE(shown.pane.PreviewZoom(), 3000);
    }

    void OutlivesADrawingThatThrows()
    {
        Shown shown;
        QSignalSpy failed(&shown.pane, &PreviewPane::Failed);
        QVERIFY(shown.Open());
        shown.script.drawingThrows = true;
        shown.pane.grab();
        QTRY_COMPARE(failed.count(), 1);
        QVERIFY(shown.pane.View().Line().startsWith("Sorry, "));
        shown.UserTurnsTo(2);  // another page is tried; its failure isn't told again
        shown.pane.grab();
        QTRY_VERIFY(shown.pane.View().Line().startsWith("Sorry, "));
        QCOMPARE(failed.count(), 1);
        shown.script.drawingThrows = false;
        shown.UserTurnsTo(3);
        shown.pane.grab();
        QCoreApplication::processEvents();
        QVERIFY(shown.pane.View().Line().startsWith("Page 3 of 3"));
    }

    void OutlivesAnEngineThatThrowsAtEachQuestion()
    {
        Shown shown;
        QSignalSpy failed(&shown.pane, &PreviewPane::Failed);
        QVERIFY(shown.Open());
        shown.script.askingThrows = true;
        shown.pane.TurnToPageOf(15, shown.pageEnds);
        shown.script.listener->MorePagesKnown();
        shown.pane.ViewPrint();
        shown.pane.grab();
        QTRY_COMPARE(failed.count(), 2);  // in the view, in printing
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::PreviewPaneTest)
#include "preview_pane_test.moc"

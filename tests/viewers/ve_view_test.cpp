#include "viewers/ve_view.h"

#include <QAccessible>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "viewers/page_area.h"
#include "viewers/scripted_engine.h"

namespace folioscope {
namespace {

constexpr int kNotch = 120;

struct Counting final : VEViewListener {
    void CurrentPageNumberChanged() override { ++changes; }
    void MorePagesKnown() override {}
    int changes = 0;
};

struct Shown {
    explicit Shown(test::Script start = {}, QSize size = QSize(300, 400)) : script(std::move(start)), document(script)
    {
        view.resize(size);
        view.show();
        area = view.findChild<PageArea*>();
        view.Attach(&document, &listener);
        view.SetFitMode(kFitWholePage);
        QVERIFY(QTest::qWaitForWindowExposed(&view));
    }
    ~Shown() { view.Attach(nullptr, nullptr); }

    void Press(Qt::Key key) { QTest::keyClick(area, key); }
    void Wheel(int delta, Qt::KeyboardModifiers keys = Qt::NoModifier, QPointF at = QPointF(50, 50))
    {
        QWheelEvent event(at, area->viewport()->mapToGlobal(at), {}, QPoint(0, delta), Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area->viewport(), &event);
    }
    QRectF Page() const { return area->PageRect(); }
    QSize Room() const { return area->viewport()->size(); }
    bool HasBars() const { return HasBar(Qt::Horizontal) || HasBar(Qt::Vertical); }
    bool HasBar(Qt::Orientation way) const
    {
        return (way == Qt::Horizontal ? area->horizontalScrollBar() : area->verticalScrollBar())->maximum() > 0;
    }
    QString LineShown() const { return view.findChild<QLabel*>("lblPage")->text(); }

    test::Script script;
    test::ScriptedDocument document;
    Counting listener;
    VEView view{nullptr};
    PageArea* area;
};

test::Script Sized(QSizeF size)
{
    test::Script script;
    script.sizes = {size};
    return script;
}

}  // namespace

class VEViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void ShowsTheFirstPageWithoutAWord()
    {
        Shown shown;
        QCOMPARE(shown.view.CurrentPage(), 1);
        QCOMPARE(shown.listener.changes, 0);
        QCOMPARE(shown.view.Line(), "Page 1 of 3, 8.5 × 11 in");
        QCOMPARE(shown.LineShown(), shown.view.Line());
    }

    void FitsAnyPageIntoAnyView_data()
    {
        QTest::addColumn<QSizeF>("page");
        QTest::addColumn<QSize>("size");
        for (const QSizeF page : {QSizeF(612, 792), QSizeF(792, 612), QSizeF(100'000, 30), QSizeF(30, 100'000)})
            for (const QSize size : {QSize(300, 400), QSize(1000, 250), QSize(80, 60), QSize(801, 903)})
                QTest::addRow("%g x %g in %d x %d", page.width(), page.height(), size.width(), size.height())
                    << page << size;
    }
    void FitsAnyPageIntoAnyView()
    {
        QFETCH(QSizeF, page);
        QFETCH(QSize, size);
        Shown shown(Sized(page), size);
        for (int rotation = 0; rotation < 4; ++rotation) {
            shown.view.SetRotation(rotation);
            shown.view.SetFitMode(kFitWholePage);
            QVERIFY(!shown.HasBars());
            QVERIFY(QRectF(QPointF(0, 0), shown.Room()).contains(shown.Page()));
            shown.view.SetFitMode(kFitPageWidth);
            QVERIFY(!shown.HasBar(Qt::Horizontal));
            QVERIFY(shown.Page().left() >= 0 && shown.Page().right() <= shown.Room().width());
        }
    }

    void FollowsTheViewsSize()
    {
        Shown shown(Sized(QSizeF(600, 600)));
        shown.view.resize(300, 500);
        QCOMPARE(shown.Page().width(), 300.0 - 2 * kPageMargin);
        shown.view.resize(200, 500);
        QCOMPARE(shown.Page().width(), 200.0 - 2 * kPageMargin);
        shown.view.SetZoom(100);
        shown.view.resize(350, 500);
        QCOMPARE(shown.Page().size(), QSizeF(800, 800));
    }

    void FitsTheWidthBesideTheScrollBar()
    {
        Shown shown(Sized(QSizeF(300, 3000)));
        shown.view.SetFitMode(kFitPageWidth);
        QVERIFY(shown.HasBar(Qt::Vertical));
        QTRY_COMPARE(shown.Room().width(), 300 - shown.area->BarExtent());
        const double over = shown.Room().width() - 2 * kPageMargin - shown.Page().width();
        QVERIFY(over >= 0 && over < 1 / shown.view.devicePixelRatio());
    }

    void ZoomsToThePercentage()
    {
        Shown shown;
        shown.view.SetZoom(100);
        QCOMPARE(shown.Page().size(), QSizeF(816, 1056));
        QCOMPARE(shown.view.FitMode(), int(kFitNone));
        shown.view.SetZoom(10);
        QVERIFY(!shown.HasBars());
        const QRectF page = shown.Page();
        QCOMPARE(page.size() * shown.view.devicePixelRatio(),
                 QSizeF(ShownSize(QSizeF(612, 792), 10, shown.view.devicePixelRatio())) *
                     shown.view.devicePixelRatio());
        QVERIFY(std::abs(page.center().x() - shown.Room().width() / 2.0) <= 0.5);
        QVERIFY(std::abs(page.center().y() - shown.Room().height() / 2.0) <= 0.5);
        shown.view.SetFitMode(5);  // no such mode
        QCOMPARE(shown.view.FitMode(), int(kFitNone));
    }

    void ScrollsToEachCornerOfALargePage()
    {
        Shown shown(Sized(QSizeF(100'000, 100'000)));
        shown.view.SetZoom(3000);
        QScrollBar *const across = shown.area->horizontalScrollBar(), *const down = shown.area->verticalScrollBar();
        across->setValue(0);
        down->setValue(0);
        QCOMPARE(shown.Page().topLeft(), QPointF(kPageMargin, kPageMargin));
        across->setValue(across->maximum());
        down->setValue(down->maximum());
        QCOMPARE(shown.Page().bottomRight() + QPointF(kPageMargin, kPageMargin),
                 QPointF(shown.Room().width(), shown.Room().height()));
        shown.view.grab();  // in the time and the memory of any other
        QVERIFY(shown.script.calls.last().startsWith("draw 1 scale 40 "));
    }

    void GivesTheEngineScaleAndRotation()
    {
        Shown shown;
        shown.view.SetZoom(75);
        shown.view.SetRotation(3);
        shown.view.grab();
        QCOMPARE(shown.script.calls.last(), "draw 1 scale 1 rotation 3");
        QCOMPARE(shown.script.dots.back(), shown.view.devicePixelRatio());
        shown.view.SetRotation(4);
        shown.view.SetRotation(-1);
        QCOMPARE(shown.view.Rotation(), 3);
    }

    void PaintsThePageWhereItLies()
    {
        Shown shown;
        const double dots = shown.view.devicePixelRatio();
        const QImage image = shown.view.grab().toImage();
        const QRect page = QRectF(shown.Page().topLeft() * dots, shown.Page().size() * dots).toRect();
        QCOMPARE(QSizeF(page.size()), shown.Page().size() * dots);  // whole dots
        const auto at = [&](QPoint dot) { return image.pixelColor(dot); };
        QCOMPARE(at(page.topLeft()), QColor(Qt::red));  // the engine's mark
        QCOMPARE(at(page.topRight()), QColor(Qt::white));
        QCOMPARE(at(page.bottomLeft()), QColor(Qt::white));
        QCOMPARE(at(page.bottomRight()), QColor(Qt::white));
        QVERIFY(at(page.topLeft() - QPoint(1, 1)) != Qt::white);
        QVERIFY(at(page.bottomRight() + QPoint(1, 1)) != Qt::white);
        QCOMPARE(at(QPoint(3, 3) * qRound(dots)).rgb(), shown.view.palette().color(QPalette::Dark).rgb());
    }

    void TurnsPagesWithTheKeys()
    {
        Shown shown;
        const auto after = [&](Qt::Key key) {
            shown.Press(key);
            return shown.view.CurrentPage();
        };
        QCOMPARE(after(Qt::Key_PageUp), 1);
        QCOMPARE(after(Qt::Key_PageDown), 2);
        QCOMPARE(after(Qt::Key_End), 3);
        QCOMPARE(after(Qt::Key_PageDown), 3);
        QCOMPARE(after(Qt::Key_PageUp), 2);
        QCOMPARE(after(Qt::Key_Home), 1);
        QCOMPARE(shown.listener.changes, 4);
    }

    void ScrollsWithTheArrows()
    {
        Shown shown;
        shown.view.SetZoom(100);
        const QScrollBar* const down = shown.area->verticalScrollBar();
        const int before = down->value();
        shown.Press(Qt::Key_Down);
        QVERIFY(down->value() > before);
        shown.Press(Qt::Key_Up);
        QCOMPARE(down->value(), before);
        QCOMPARE(shown.view.CurrentPage(), 1);
    }

    void TurnsPagesWithTheWheelAtThePagesEdge()
    {
        Shown shown;
        shown.Wheel(-kNotch / 2);
        QCOMPARE(shown.view.CurrentPage(), 1);  // half a notch
        shown.Wheel(-kNotch / 2);
        QCOMPARE(shown.view.CurrentPage(), 2);
        shown.view.SetZoom(100);
        QScrollBar* const down = shown.area->verticalScrollBar();
        down->setValue(0);
        shown.Wheel(-kNotch);
        QCOMPARE(shown.view.CurrentPage(), 2);  // it scrolls
        QVERIFY(down->value() > 0);
        down->setValue(down->maximum());
        shown.Wheel(-kNotch);
        QCOMPARE(shown.view.CurrentPage(), 3);
        QCOMPARE(down->value(), 0);
        shown.Wheel(kNotch);
        QCOMPARE(shown.view.CurrentPage(), 2);
        QCOMPARE(down->value(), down->maximum());  // read backwards
    }

    void AsksForAnotherZoomWithCtrlAndTheWheel()
    {
        Shown shown;
        QSignalSpy wanted(&shown.view, &VEView::ZoomStepWanted);
        shown.Wheel(-2 * kNotch, Qt::ControlModifier);
        shown.Wheel(kNotch / 2, Qt::ControlModifier);
        shown.Wheel(kNotch / 2, Qt::ControlModifier);
        QCOMPARE(wanted.count(), 2);
        QCOMPARE(wanted[0][0].toInt(), -2);
        QCOMPARE(wanted[1][0].toInt(), 1);
        QCOMPARE(shown.view.CurrentPage(), 1);
    }

    void KeepsWhatIsUnderThePointerWhenItZooms()
    {
        Shown shown;
        shown.view.SetZoom(200);
        const QPointF at(100, 150);
        const auto share = [&] {
            const QPointF inside = at - shown.Page().topLeft();
            return QPointF(inside.x() / shown.Page().width(), inside.y() / shown.Page().height());
        };
        const QPointF before = share();
        connect(&shown.view, &VEView::ZoomStepWanted, &shown.view, [&] { shown.view.SetZoom(300); });
        shown.Wheel(kNotch, Qt::ControlModifier, at);
        QCOMPARE(shown.view.Zoom(), 300.0);
        QVERIFY((share() - before).manhattanLength() < 0.002);
    }

    void KeepsTheMiddleWhenItZoomsByItself()
    {
        Shown shown;
        QScrollBar *const across = shown.area->horizontalScrollBar(), *const down = shown.area->verticalScrollBar();
        shown.view.SetZoom(100);
        QCOMPARE(down->value(), 0);  // it was seen whole, so it is read from its top
        QTRY_VERIFY(shown.Room().width() < 300);
        down->setValue(300);
        const auto middle = [&] {
            const QPointF inside = QRectF(QPointF(0, 0), shown.Room()).center() - shown.Page().topLeft();
            return QPointF(inside.x() / shown.Page().width(), inside.y() / shown.Page().height());
        };
        const QPointF before = middle();
        shown.view.SetZoom(200);
        QVERIFY((middle() - before).manhattanLength() < 0.002);
        QVERIFY(across->value() > 0);
    }

    void GoesToPagesThatItHas()
    {
        Shown shown;
        for (const int page : {0, -1, 4, 1000}) {
            shown.view.GoToPage(page);
            QCOMPARE(shown.view.CurrentPage(), 1);
        }
        shown.view.GoToPage(3);
        shown.view.GoToPage(3);
        QCOMPARE(shown.view.CurrentPage(), 3);
        QCOMPARE(shown.listener.changes, 1);
    }

    void WaitsForAPageThatIsNotKnownYet()
    {
        test::Script script;
        script.pages = 0;
        script.knowsAll = false;
        Shown shown(script);
        QCOMPARE(shown.view.CurrentPage(), 0);
        QCOMPARE(shown.view.Line(), "Looking for pages ...");
        shown.view.GoToPage(5);
        shown.script.pages = 2;
        shown.view.PagesGrew();
        QCOMPARE(shown.view.CurrentPage(), 1);
        QCOMPARE(shown.view.Line(), "Page 1 of 2+, 8.5 × 11 in");
        QCOMPARE(shown.listener.changes, 0);
        shown.script.pages = 5;
        shown.script.knowsAll = true;
        shown.view.PagesGrew();
        QCOMPARE(shown.view.CurrentPage(), 5);
        QCOMPARE(shown.view.Line(), "Page 5 of 5, 8.5 × 11 in");
        QCOMPARE(shown.listener.changes, 1);
    }

    void GivesUpAPageThatNeverComes()
    {
        test::Script script;
        script.knowsAll = false;
        Shown shown(script);
        shown.view.GoToPage(9);
        shown.script.knowsAll = true;
        shown.view.PagesGrew();
        shown.script.pages = 20;
        shown.view.PagesGrew();
        QCOMPARE(shown.view.CurrentPage(), 1);
    }

    void SaysThatThereAreNoPages()
    {
        test::Script script;
        script.pages = 0;
        Shown shown(script);
        QCOMPARE(shown.view.CurrentPage(), 0);
        QCOMPARE(shown.view.Line(), "This document has no pages to show.");
        QVERIFY(!shown.view.findChild<QLabel*>("lblPage")->isVisible());
        shown.view.SetTexts(Labels(Language::French));
        QCOMPARE(shown.view.Line(), "Ce document n'a aucune page à afficher.");
        for (const auto key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End}) shown.Press(key);
        shown.Wheel(-kNotch);
        shown.view.SetRotation(1);
        shown.view.SetZoom(3000);
        QVERIFY(!shown.HasBars());
        shown.view.grab();
        QVERIFY(shown.script.calls.isEmpty());
        QCOMPARE(shown.listener.changes, 0);
    }

    void ShowsPagesOfDifferentSizes()
    {
        test::Script script;
        script.sizes = {QSizeF(612, 792), QSizeF(720, 360)};
        Shown shown(script);
        shown.view.GoToPage(2);
        QCOMPARE(shown.view.Line(), "Page 2 of 3, 10 × 5 in");
        QVERIFY(std::abs(shown.Page().width() / shown.Page().height() - 2) < 0.02);
        shown.view.SetRotation(1);
        QCOMPARE(shown.view.Line(), "Page 2 of 3, 10 × 5 in");  // the page's own
        QVERIFY(std::abs(shown.Page().height() / shown.Page().width() - 2) < 0.02);
    }

    void HidesTheLineIfAsked()
    {
        Shown shown;
        shown.view.SetShowOptions(true, false);
        QVERIFY(!shown.view.findChild<QLabel*>("lblPage")->isVisible());
        shown.view.SetShowOptions(true, true);
        QVERIFY(shown.view.findChild<QLabel*>("lblPage")->isVisible());
    }

    void SpeaksToAScreenReader()
    {
        Shown shown;
        shown.view.SetTexts(Labels(Language::German));
        shown.view.GoToPage(2);
        QCOMPARE(shown.view.focusProxy(), static_cast<QWidget*>(shown.area));
        const auto* const voice = QAccessible::queryAccessibleInterface(shown.area);
        QCOMPARE(voice->text(QAccessible::Name), "Seitenvorschau");
        QCOMPARE(voice->text(QAccessible::Description), "Seite 2 von 3, 8.5 × 11 Zoll");
    }

    void FitsIntoANarrowPane()
    {
        Shown shown;
        for (const auto language : {Language::English, Language::German, Language::French}) {
            shown.view.SetTexts(Labels(language));
            QVERIFY(shown.view.minimumSizeHint().width() <= 150);
        }
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::VEViewTest)
#include "ve_view_test.moc"

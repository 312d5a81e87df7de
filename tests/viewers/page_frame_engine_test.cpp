#include "viewers/page_frame_engine.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <filesystem>

#include "support/afp_builder.h"
#include "support/temporary_file.h"
#include "viewers/scripted_engine.h"

namespace folioscope {

using test::AfpFile;
using test::Bytes;
using test::Packaging;
using test::U1;
using test::U2;
using test::U3;

namespace {

Bytes Descriptor(unsigned units, unsigned width, unsigned height)
{
    return U1(0) + U1(0) + U2(units) + U2(units) + U3(width) + U3(height);
}

AfpFile Pages(int count, Packaging packaging = Packaging::FiveA)
{
    AfpFile file(packaging);
    file.Add("BDT");
    for (int page = 0; page < count; ++page)
        file.Add("BPG").Add("BAG").Add("PGD", Descriptor(14400, 7200, 14400)).Add("EAG").Add("EPG");
    file.Add("EDT");
    return file;
}

struct Listening final : VEViewListener {
    void CurrentPageNumberChanged() override { ++changes; }
    void MorePagesKnown() override
    {
        ++news;
        if (document) counts += document->PageCount();
    }
    ViewDocument* document = nullptr;
    int changes = 0, news = 0;
    QList<int> counts;
};

struct Opened {
    explicit Opened(const std::string& path, Language language = Language::English)
        : engine({&log, "fsv", {}, [language] { return Labels(language); }}),
          document(engine.OpenDocument(QString::fromStdString(path), true, listener))
    {
        listener.document = document.get();
    }
    void WaitForAll() { QTRY_VERIFY_WITH_TIMEOUT(document->KnowsAllPages(), 60'000); }

    test::MessageLog log;
    Listening listener;
    PageFrameEngine engine;
    std::unique_ptr<ViewDocument> document;
};

QImage Painted(ViewDocument& document, double scale, int rotation)
{
    QImage image(120, 120, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    document.DrawPage(1, painter, scale, rotation);
    return image;
}

// The part from 0, 0 on that is white, if all else is gray.
QSize Paper(const QImage& image)
{
    QSize paper(0, 0);
    while (paper.width() < image.width() && image.pixelColor(paper.width(), 0) == Qt::white) paper.rwidth()++;
    while (paper.height() < image.height() && image.pixelColor(0, paper.height()) == Qt::white) paper.rheight()++;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if ((image.pixelColor(x, y) == Qt::white) != (x < paper.width() && y < paper.height())) return {};
    return paper;
}

}  // namespace

class PageFrameEngineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void KnowsThePagesOfASmallFileAtOnce_data()
    {
        QTest::addColumn<int>("packaging");
        for (const Packaging packaging : {Packaging::Bare, Packaging::FiveA, Packaging::Rdw2, Packaging::Rdw4,
                                          Packaging::Cr, Packaging::Lf, Packaging::CrLf})
            QTest::addRow("packaging %d", static_cast<int>(packaging)) << static_cast<int>(packaging);
    }
    void KnowsThePagesOfASmallFileAtOnce()
    {
        QFETCH(int, packaging);
        Opened opened(folder_.File("a.afp", Pages(7, static_cast<Packaging>(packaging)).Content()));
        QVERIFY(opened.document != nullptr);
        opened.WaitForAll();
        QCOMPARE(opened.document->PageCount(), 7);
        QCOMPARE(opened.document->PageSize(7), QSizeF(360, 720));
        QVERIFY(opened.log.messages.empty());
        QCOMPARE(opened.listener.changes, 0);
    }

    void FindsManyPagesBitByBit()
    {
        constexpr int kPages = 400'000;
        Opened opened(folder_.File("many.afp", Pages(kPages).Content()));
        QVERIFY(opened.document != nullptr);
        const int atOnce = opened.document->PageCount();
        QVERIFY2(atOnce > 0, "the first slice finds the first pages");
        QVERIFY2(opened.listener.news == 0, "nothing is told before the document is there");
        if (atOnce < kPages) {
            QVERIFY(!opened.document->KnowsAllPages());
            opened.WaitForAll();
            QVERIFY(opened.listener.news > 0);
            QVERIFY(std::is_sorted(opened.listener.counts.begin(), opened.listener.counts.end()));
            QCOMPARE(opened.listener.counts.last(), kPages);
        }
        QCOMPARE(opened.document->PageCount(), kPages);
        const int told = opened.listener.news;
        QTest::qWait(1);
        QCOMPARE(opened.listener.news, told);
    }

    void FindsAllPagesInOneGo()
    {
        Opened opened(folder_.File("many.afp", Pages(100'000).Content()));
        opened.document->FindAllPages();
        QVERIFY(opened.document->KnowsAllPages());
        QCOMPARE(opened.document->PageCount(), 100'000);
        opened.document->FindAllPages();
        QCOMPARE(opened.document->PageCount(), 100'000);
    }

    void StopsInNoiseAndGoesOn()
    {
        // Bytes that look like the start of a field at each place, which is slow to pass.
        const Bytes noise(9'000'000, '\xD3');

        Opened opened(
            folder_.File("noise.afp", noise + Pages(3).Content() + noise + noise + noise + Pages(2).Content()));
        QVERIFY(opened.document != nullptr);
        opened.WaitForAll();
        QCOMPARE(opened.document->PageCount(), 5);
    }

    void HasNoPagesInAFileWithoutRecords()
    {
        for (const Bytes& content : {Bytes(), Bytes("no such thing"), Bytes(5'000'000, '\0')}) {
            Opened opened(folder_.File("a.afp", content));
            QVERIFY(opened.document != nullptr);
            opened.WaitForAll();
            QCOMPARE(opened.document->PageCount(), 0);
            QVERIFY(opened.log.messages.empty());
        }
    }

    void CountsAPageThatTheFilesEndCuts()
    {
        const Bytes content = Pages(3).Content();
        Opened opened(folder_.File("cut.afp", content.substr(0, content.rfind(test::IdentifierOf("PGD")) + 2)));
        opened.WaitForAll();
        QCOMPARE(opened.document->PageCount(), 3);
        QCOMPARE(opened.document->PageSize(3), QSizeF(360, 720));
    }

    void TellsThatAFileIsMissing()
    {
        const std::string path = folder_ / "%2 missing.afp";
        Opened opened(path, Language::German);
        QVERIFY(opened.document == nullptr);
        QCOMPARE(opened.log.messages.size(), 1U);
        const auto& [origin, number, severity, message] = opened.log.messages.front();
        QCOMPARE(number, 53);
        QCOMPARE(severity, 3);
        QCOMPARE(message, QString("Die Datei %1 konnte nicht geöffnet werden! Folgender Fehler ist aufgetreten:"
                                  "\r\n53, File not found")
                              .replace("%1", QString::fromStdString(path)));
    }

    void TellsThatAFolderIsNoFile()
    {
        Opened opened(folder_.Path());
        QVERIFY(opened.document == nullptr);
        QCOMPARE(opened.log.messages.size(), 1U);
        QCOMPARE(opened.log.messages.front().number, 76);
    }

    void OpensWithoutACallback()
    {
        Listening listener;
        PageFrameEngine engine(EngineSetup{});
        QVERIFY(engine.OpenDocument("/no/such/file", false, listener) == nullptr);
    }

    void OutlivesAFileThatGoesOrShrinks()
    {
        const std::string path = folder_.File("gone.afp", Pages(300'000).Content());
        Opened opened(path);
        std::filesystem::resize_file(path, 1000);
        std::filesystem::remove(path);
        opened.WaitForAll();
        QVERIFY(opened.document->PageCount() > 0);
        QVERIFY(opened.document->PageCount() <= 300'000);
    }

    void CanBeClosedInTheMiddle()
    {
        const std::string path = folder_.File("many.afp", Pages(300'000).Content());
        Opened opened(path);
        opened.document.reset();
        QTest::qWait(1);
        QCOMPARE(opened.listener.news, 0);
    }

    void PaintsBlankPaper()
    {
        Opened opened(folder_.File("a.afp", Pages(1).Content()));
        QCOMPARE(Paper(Painted(*opened.document, 0.125, 0)), QSize(45, 90));
        QCOMPARE(Paper(Painted(*opened.document, 0.125, 1)), QSize(90, 45));
        QCOMPARE(Paper(Painted(*opened.document, 0.125, 2)), QSize(45, 90));
        QCOMPARE(Paper(Painted(*opened.document, 0.125, 3)), QSize(90, 45));
        QCOMPARE(Paper(Painted(*opened.document, 0.25, 0)), QSize(90, 120));
    }

private:
    test::TemporaryFolder folder_;
};

}  // namespace folioscope

QTEST_MAIN(folioscope::PageFrameEngineTest)
#include "page_frame_engine_test.moc"

// The file type as desktops see it: by name and by content, beside all types that they know already.

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace folioscope {
namespace {

constexpr char kOwnTypes[] = FOLIOSCOPE_SOURCE_DIR "/packaging/folioscope.xml";
constexpr char kKnownTypes[] = "/usr/share/mime/packages/freedesktop.org.xml";
constexpr char kDocument[] = "application/vnd.afpc.modca";

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QSet<QString> NamesIn(const char* path)
{
    static const QRegularExpression glob("<glob [^>]*pattern=\"([^\"]*)\"");
    QSet<QString> names;
    auto match = glob.globalMatch(QString::fromUtf8(ContentOf(path)));
    while (match.hasNext()) names.insert(match.next().captured(1).toLower());
    return names;
}

QString TypeOfName(const QString& name)
{
    return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
}

QString TypeOfContent(const QByteArray& content) { return QMimeDatabase().mimeTypeForData(content).name(); }

// Bytes in hex, and a text behind them.
QByteArray Start(const char* hex, const QByteArray& text = {}) { return QByteArray::fromHex(hex) + text; }

}  // namespace

class FileTypeTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // In a folder of its own, as the only one that the program sees.
    void initTestCase()
    {
        const QString packages = folder_.filePath("mime/packages");
        QVERIFY(QDir().mkpath(packages));
        QVERIFY(QFile::copy(kKnownTypes, packages + "/freedesktop.org.xml"));
        QVERIFY(QFile::copy(kOwnTypes, packages + "/folioscope.xml"));
        qputenv("PKGSYSTEM_ENABLE_FSYNC", "0");
        qputenv("XDG_DATA_HOME", folder_.path().toLocal8Bit());
        qputenv("XDG_DATA_DIRS", folder_.path().toLocal8Bit());
        QProcess update;
        update.start("update-mime-database", {"-V", folder_.filePath("mime")});
        QVERIFY(update.waitForFinished());
        QCOMPARE(update.exitCode(), 0);
        const QByteArray complaints = update.readAllStandardError();
        QVERIFY2(!complaints.contains("afpc"), complaints.constData());
        QVERIFY(QFile::exists(folder_.filePath("mime/application/vnd.afpc.modca.xml")));
    }

    void KnowsTheSamplesByContent()
    {
        QDirIterator samples(FOLIOSCOPE_SOURCE_DIR "/samples", {"*.afp"});
        int count = 0;
        for (; samples.hasNext(); ++count) {
            const QString path = samples.next();
            QVERIFY2(TypeOfContent(ContentOf(path)) == kDocument, qPrintable(path));
        }
        QVERIFY(count >= 12);
    }

    void KnowsEachPackagingByItsFirstBytes()
    {
        // clang-format off
        constexpr const char* kStarts[] = {
            "5A 0010 D3A8A8 00 0000",           // carriage control
            "5A 07FF D3EEEE 00 0000",
            "5A 7FF0 D3EEEE 00 0000",           // a long first record
            "0010 D3A8A8 00 0000",              // bare
            "0013 5A 0010 D3A8A8 00 0000",      // record descriptor words
            "0013 0010 D3A8A8 00 0000",
            "0015 0000 5A 0010 D3A8A8 00 0000",
            "07FF 0000 5A 07F0 D3EEEE 00 0000",
            "0014 0000 0010 D3A8A8 00 0000",
            "5A 0008 D3A8A8 00 0000 0D0A 5A",   // record delimiters
        };
        // clang-format on
        for (const char* const start : kStarts)
            QVERIFY2(TypeOfContent(Start(start, QByteArray(64, '\0'))) == kDocument, start);
    }

    void LeavesOtherContentAlone()
    {
        // Texts in which a Cyrillic letter of the bytes D3 A8 stands where a field's identifier would.
        QCOMPARE(TypeOfContent("# \u04E8\u043D\u0434\u04E9\u0440\n"), QString("text/plain"));
        QCOMPARE(TypeOfContent("Z. \u04E8\u043D\u0434\u04E9\u0440\n"), QString("text/plain"));
        QCOMPARE(TypeOfContent("- Z. \u04E8\u043D\u0434\u04E9\u0440\n"), QString("text/plain"));
        QCOMPARE(TypeOfContent("Z as any text that begins so\n"), QString("text/plain"));
        // x'D3' is there, but no type of a field behind it, or a length that no field has.
        QVERIFY(TypeOfContent(Start("5A 0010 D37FA8 00 0000")) != kDocument);
        QVERIFY(TypeOfContent(Start("5A FF10 D3A8A8 00 0000")) != kDocument);
        QVERIFY(TypeOfContent(Start("5B 0010 D3A8A8 00 0000")) != kDocument);
        QVERIFY(TypeOfContent(Start("0010 D3A9A8 00 0000")) != kDocument);
        QVERIFY(TypeOfContent(Start("8010 D3A8A8 00 0000")) != kDocument);
        QCOMPARE(TypeOfContent(ContentOf(FOLIOSCOPE_SOURCE_DIR "/src/shell/resources/icons/folioscope.svg")),
                 QString("image/svg+xml"));
        QCOMPARE(TypeOfContent(QByteArray()), QString("application/x-zerosize"));
    }

    void KnowsItsNames()
    {
        for (const char* const name : {"a.afp", "A.AFP", "a.afpds", "a.listafp", "a.list3820", "a.pseg3820"})
            QCOMPARE(TypeOfName(name), QString(kDocument));
        QCOMPARE(TypeOfName("a.ovl"), QString("application/vnd.afpc.modca-overlay"));
        QCOMPARE(TypeOfName("a.psg"), QString("application/vnd.afpc.modca-pagesegment"));
    }

    void TakesNoNameFromAnotherType()
    {
        const QSet<QString> own = NamesIn(kOwnTypes), known = NamesIn(kKnownTypes);
        QCOMPARE(own.size(), 7);
        QVERIFY(known.size() > 500);
        QCOMPARE(own & known, QSet<QString>());
    }

    void OpensPartsLikeDocuments()
    {
        for (const char* const part : {"overlay", "pagesegment"}) {
            const QMimeType type = QMimeDatabase().mimeTypeForName(QStringLiteral("%1-%2").arg(kDocument, part));
            QVERIFY(type.isValid());
            QVERIFY(type.inherits(kDocument));
            QCOMPARE(type.iconName(), QString("application-vnd.afpc.modca"));
        }
        QCOMPARE(QMimeDatabase().mimeTypeForName(kDocument).iconName(), QString("application-vnd.afpc.modca"));
        QCOMPARE(QMimeDatabase().mimeTypeForName(kDocument).genericIconName(), QString("x-office-document"));
    }

private:
    QTemporaryDir folder_;
};

}  // namespace folioscope

QTEST_GUILESS_MAIN(folioscope::FileTypeTest)
#include "file_type_test.moc"

#include "viewers/page_frame_engine.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QTimer>

#include <utility>

#include "base/text.h"
#include "stream/record_reader.h"
#include "viewers/page_sizes.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

constexpr int kError = 3;                 // severity
constexpr qint64 kSlice = 5;              // milliseconds; the reading of a chunk comes on top
constexpr int kRecordsBetweenLooks = 64;  // at the clock

// Walks through the file's records in slices of the event loop, and lets go of the file at its end.
class FrameDocument final : public ViewDocument {
public:
    using Report = std::function<void(const FileFailure&)>;

    FrameDocument(const QString& path, VEViewListener& listener, Report report)
        : listener_(listener), report_(std::move(report)), reader_(std::make_unique<RecordReader>())
    {
        reader_->SetFile(QFile::encodeName(path).toStdString());
        reader_->onScan = [this](std::int32_t) {
            paused_ = IsSliceOver();
            return !paused_;
        };
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { GoOn(); });
    }

    bool Open()
    {
        StartSlice(kSlice);
        if (reader_->OpenAFPFile() == kFailure) {
            Finish();
            return false;
        }
        opening_ = paused_;
        Walk();
        if (reader_) timer_.start(0);
        return true;
    }

    int PageCount() const override { return pages_.Count(); }
    bool KnowsAllPages() const override { return !reader_; }
    void FindAllPages() override
    {
        if (!reader_) return;
        StartSlice(-1);
        Walk();
        listener_.MorePagesKnown();
    }

    QSizeF PageSize(int page) const override { return pages_.SizeOf(page); }
    void DrawPage(int page, QPainter& painter, double scale, int rotation) override
    {
        QSizeF size = PageSize(page) * scale;
        if (rotation % 2 != 0) size.transpose();
        painter.fillRect(QRectF(QPointF(0, 0), size), Qt::white);
    }
    void StartPage(int, QPainter&) override {}
    void EndPage(int, QPainter&) override {}

private:
    void GoOn()
    {
        const int before = PageCount();
        StartSlice(kSlice);
        Walk();
        if (PageCount() != before || KnowsAllPages()) listener_.MorePagesKnown();
    }

    void StartSlice(qint64 milliseconds)
    {
        slice_ = milliseconds;
        clock_.start();
    }
    bool IsSliceOver() const { return slice_ >= 0 && clock_.elapsed() >= slice_; }

    // Up to the slice's or the file's end. Each turn moves the reader on.
    void Walk()
    {
        for (int looks = 1; reader_; ++looks) {
            if (looks % kRecordsBetweenLooks == 0 && IsSliceOver()) return;
            paused_ = false;
            if (opening_) {
                const bool failed = reader_->GoOnOpening() == kFailure;
                opening_ = paused_;
                if (failed) Finish();
            } else if (reader_->GetNextRecord2() == kRecord) {
                Take();
            } else if (!paused_) {
                Finish();
            }
            if (paused_) return;
        }
    }

    void Take()
    {
        pages_.Feed(reader_->RecordBuffer().subspan(static_cast<std::size_t>(reader_->RecordStart()) - 1,
                                                    static_cast<std::size_t>(reader_->FieldLength())));
    }

    void Finish()
    {
        timer_.stop();
        pages_.FeedEnd();
        const FileFailure failure = reader_->Failure();
        reader_.reset();
        if (failure) report_(failure);
    }

    VEViewListener& listener_;
    Report report_;
    std::unique_ptr<RecordReader> reader_;  // none when all is known
    PageSizes pages_;
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 slice_ = kSlice;  // milliseconds; -1 for no end
    bool paused_ = false;    // the reader has stopped in noise because the slice is over
    bool opening_ = false;   // it did so before the first record
};

QString TextOf(const Labels& texts, const QString& path, const FileFailure& failure)
{
    std::string text(texts[U("File %1 could not be opened! Following error occured: NEWLINE %2, %3")]);
    ChangeString(text, " NEWLINE ", "\r\n");
    ChangeString(text, "%3", failure.description);
    ChangeString(text, "%2", std::to_string(failure.number));
    ChangeString(text, "%1", path.toStdString());  // last, as it may hold a placeholder
    return ToQt(text);
}

}  // namespace

PageFrameEngine::PageFrameEngine(EngineSetup setup) : setup_(std::move(setup)) {}

// Blank paper has no way up, so there is nothing to turn by itself.
std::unique_ptr<ViewDocument> PageFrameEngine::OpenDocument(const QString& path, bool, VEViewListener& listener)
{
    auto document = std::make_unique<FrameDocument>(path, listener, [this, path](const FileFailure& failure) {
        if (!setup_.callback) return;
        const Labels texts = setup_.texts ? setup_.texts() : Labels(Language::English);
        setup_.callback->IVEDisplayMachineCallback_LogMessage(QStringLiteral("PageFrameEngine"), failure.number, kError,
                                                              TextOf(texts, path, failure));
    });
    if (!document->Open()) return nullptr;
    return document;
}

}  // namespace folioscope

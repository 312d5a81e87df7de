#include "viewers/print_pages.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>

#include "viewers/page_geometry.h"
#include "viewers/preview_engine.h"

namespace folioscope {

namespace {

constexpr double kPointsPerInch = 72;

// The printer belongs to the job until this goes.
class DeviceInUse {
public:
    DeviceInUse(const PrintJob& job, QPrinter& printer) : engine_(job.engine), printer_(printer)
    {
        engine_.BeginJob(printer_, job.program);
    }
    DeviceInUse(const DeviceInUse&) = delete;
    DeviceInUse& operator=(const DeviceInUse&) = delete;
    ~DeviceInUse()
    {
        try {
            engine_.ReleaseDevice(printer_);
        } catch (...) {  // there is nothing left to do for the printer
        }
    }

private:
    PreviewEngine& engine_;
    QPrinter& printer_;
};

void PrintPage(QPainter& painter, const QPrinter& printer, ViewDocument& document, int page)
{
    const QSizeF points = ShowablePage(document.PageSize(page));
    const double dotsX = printer.logicalDpiX() / kPointsPerInch, dotsY = printer.logicalDpiY() / kPointsPerInch;
    const double fit =
        std::min(printer.width() / (points.width() * dotsX), printer.height() / (points.height() * dotsY));
    document.StartPage(page, painter);
    painter.save();
    painter.scale(1, dotsY / dotsX);
    document.DrawPage(page, painter, fit * dotsX, 0);
    painter.restore();
    document.EndPage(page, painter);
}

}  // namespace

PrintResult PrintPages(QPrinter& printer, const PrintJob& job)
{
    printer.setDocName(job.program);
    if (job.pages.isEmpty()) return PrintResult::Printed;
    QPainter painter;
    if (!painter.begin(&printer)) return PrintResult::PrinterFailed;
    {
        const DeviceInUse device(job, printer);
        for (int page = job.pages.firstPage(); page <= job.pages.lastPage(); ++page) {
            if (!job.pages.contains(page)) continue;
            if (page > job.pages.firstPage() && !printer.newPage()) return PrintResult::PrinterFailed;
            PrintPage(painter, printer, job.document, page);
        }
    }
    return painter.end() ? PrintResult::Printed : PrintResult::PrinterFailed;
}

}  // namespace folioscope

#pragma once

#include <QPageRanges>
#include <QString>

class QPrinter;

namespace folioscope {

class PreviewEngine;
class ViewDocument;

struct PrintJob {
    PreviewEngine& engine;
    ViewDocument& document;
    QString program;  // under this name it stands in the printer's queue
    QPageRanges pages;
};

enum class PrintResult { Printed, PrinterFailed };

// Prints each page as large as the printer's page allows, from its upper left corner on and undistorted. What the
// engine throws goes through, behind the release of the printer.
PrintResult PrintPages(QPrinter& printer, const PrintJob& job);

}  // namespace folioscope

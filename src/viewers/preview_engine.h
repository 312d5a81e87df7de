#pragma once

#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

#include "base/labels.h"

class QPaintDevice;
class QPainter;

namespace folioscope {

// What the program asks of an engine that paints pages. An engine reads the file by itself, apart from the analysis.
// All calls come on the interface's thread and are answered on it, and none may keep it for long: what takes time is
// done in slices from the event loop. Pages count from 1. Sizes are in points of 1/72 inch. A call may throw; the
// caller takes that for a failure and goes on.

// What the engine has to say.
class IVEDisplayMachineCallback {
public:
    virtual ~IVEDisplayMachineCallback() = default;
    // severity: 2 warning, 3 error, 4 fatal.
    virtual void IVEDisplayMachineCallback_LogMessage(const QString& origin, int number, int severity,
                                                      const QString& message) = 0;
};

// Hears of one document. It outlives the document, and nothing comes before the document is there.
class VEViewListener {
public:
    virtual ~VEViewListener() = default;
    // The view shows another page than before.
    virtual void CurrentPageNumberChanged() = 0;
    // PageCount or KnowsAllPages tells something new.
    virtual void MorePagesKnown() = 0;
};

// An open document.
class ViewDocument {
public:
    virtual ~ViewDocument() = default;

    // The pages found so far: the number only grows, until all are known.
    virtual int PageCount() const = 0;
    virtual bool KnowsAllPages() const = 0;
    // Finds the pages that aren't known yet, however long that takes. Needed before printing.
    virtual void FindAllPages() = 0;

    // As the page stands in the file, without the view's rotation. `page` is one of those found.
    virtual QSizeF PageSize(int page) const = 0;
    // Paints a page with its upper left corner, as turned, at 0, 0. `scale` is the painter's units per point;
    // `rotation` counts quarter turns clockwise, 0 to 3. The painter's clip tells which part is wanted, and its device
    // how many dots a unit has. The paper is painted too.
    virtual void DrawPage(int page, QPainter& painter, double scale, int rotation) = 0;

    // Around the drawing of each page that is printed.
    virtual void StartPage(int page, QPainter& painter) = 0;
    virtual void EndPage(int page, QPainter& painter) = 0;
};

class PreviewEngine {
public:
    virtual ~PreviewEngine() = default;

    // `autoRotation`: pages are turned so that their text stands upright, each by itself. Gives null if the file can't
    // be shown; the reason goes to the callback. The engine outlives its documents.
    virtual std::unique_ptr<ViewDocument> OpenDocument(const QString& path, bool autoRotation,
                                                       VEViewListener& listener) = 0;
    // Around a print job.
    virtual void BeginJob(QPaintDevice& device, const QString& program) = 0;
    virtual void ReleaseDevice(QPaintDevice& device) = 0;
};

// What an engine is made with, once for the program.
struct EngineSetup {
    IVEDisplayMachineCallback* callback = nullptr;  // outlives the engine
    QString program;                                // the program's name
    QString workFolder;                             // for what an engine puts aside
    std::function<Labels()> texts;                  // the interface's language, asked for at each message
};

}  // namespace folioscope

#pragma once

#include "viewers/preview_engine.h"

namespace folioscope {

// An engine that knows how many pages a file has and how large each of them is, and paints blank paper.
//
// A page's size is that of the first Page Descriptor in it (MO:DCA, PGD). A page without one has the size that the
// file has named last before the page's end; overlays don't count. Where there is none, or none that a page can have,
// it is 8.5 x 11 inches.
class PageFrameEngine final : public PreviewEngine {
public:
    explicit PageFrameEngine(EngineSetup setup);

    std::unique_ptr<ViewDocument> OpenDocument(const QString& path, bool autoRotation,
                                               VEViewListener& listener) override;
    void BeginJob(QPaintDevice&, const QString&) override {}
    void ReleaseDevice(QPaintDevice&) override {}

private:
    EngineSetup setup_;
};

}  // namespace folioscope

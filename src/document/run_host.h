#pragma once

#include <cstdint>
#include <string_view>

namespace folioscope {

enum class BoxIcon : std::uint8_t { Stop, Information };

// Whoever runs a document: a window, or a batch tool that stays silent. All calls come on the document's thread.
class RunHost {
public:
    virtual ~RunHost() = default;

    // A long operation: progress and cancel are shown, commands that must not run meanwhile are held back.
    virtual void OperationStarts(std::int64_t /*lngMaximum*/) {}
    virtual void Progress(std::int64_t /*lngValue*/) {}
    virtual void Counters(std::int32_t /*lngSFCount*/, std::int32_t /*lngPageCount*/) {}
    // The only moment at which the user can act. May set the document's cancel flag.
    virtual void GiveWay() {}
    // A moment of an operation at which the window may be painted anew, but the user can't act.
    virtual void KeepAlive() {}
    virtual void OperationEnds() {}

    virtual void RunFinished() {}     // the root can be selected and expanded
    virtual void PreviewOffered() {}  // the document has pages
    virtual void MessageBox(BoxIcon /*icon*/, std::string_view /*title*/, std::string_view /*text*/) {}
};

}  // namespace folioscope

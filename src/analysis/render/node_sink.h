#pragma once

#include <string_view>

namespace folioscope {

// What rendering tells the tree and the message list.
class NodeSink {
public:
    virtual ~NodeSink() = default;
    virtual void SetNodeText(std::string_view shortName) = 0;
    virtual void ShowResName(std::string_view name) = 0;
    virtual void SetUnread() = 0;
    virtual void MarkNodeInvalid() = 0;  // the current node and its ancestors
    virtual void AddContentMessage(std::string_view description) = 0;
};

}  // namespace folioscope

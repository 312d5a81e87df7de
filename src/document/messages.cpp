#include "document/messages.h"

#include <array>

namespace folioscope {

namespace {

constexpr std::array<std::string_view, 4> kSources = {"General", "Structure", "Content", "Viewer"};
constexpr std::array<std::string_view, 4> kSeverities = {"I", "W", "E", "F"};

}  // namespace

std::string_view NameOf(MessageSource source) { return kSources[static_cast<std::size_t>(source)]; }

std::string_view NameOf(MessageSeverity severity) { return kSeverities[static_cast<std::size_t>(severity)]; }

void MessageList::addMessage(MessageSource source, MessageSeverity severity, std::string_view strDescription,
                             bool bolHighlight)
{
    while (!strDescription.empty()) {
        const auto end = strDescription.find("\r\n");
        const auto part = strDescription.substr(0, end);
        if (part.empty()) break;
        lines_.push_back({texts_.Keep(part), source, severity, bolHighlight});
        faults_ |= severity >= MessageSeverity::Error;
        bolHasNew_ = true;
        if (listener_ != nullptr) listener_->MessageAdded(lines_.size() - 1);
        if (end == std::string_view::npos) break;
        strDescription.remove_prefix(end + 2);
    }
}

void MessageList::ShowWithBeep()
{
    if (bolHasNew_ && listener_ != nullptr) listener_->ShowMessages();
    if (!bolBeeped_ && listener_ != nullptr) listener_->Beep();
    bolBeeped_ = true;
}

void MessageList::Dismiss() { bolHasNew_ = bolBeeped_ = false; }

void MessageList::Clear()
{
    lines_.clear();
    texts_.Clear();
    bolHasNew_ = bolBeeped_ = faults_ = false;
    if (listener_ != nullptr) listener_->MessagesCleared();
}

}  // namespace folioscope

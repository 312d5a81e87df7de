#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>

#include "document/text_store.h"

namespace folioscope {

enum class MessageSource : std::uint8_t { General, Structure, Content, Viewer };
enum class MessageSeverity : std::uint8_t { Information, Warning, Error, Fatal };

std::string_view NameOf(MessageSource source);      // "General" and so on, the same in every language
std::string_view NameOf(MessageSeverity severity);  // "I", "W", "E", "F"

struct Message {
    TextPlace description;
    MessageSource source;
    MessageSeverity severity;
    bool bolHighlight;
};

// What a message list's window wants to hear of.
class MessageListener {
public:
    virtual ~MessageListener() = default;
    virtual void MessageAdded(std::size_t /*index*/) {}
    virtual void MessagesCleared() {}
    virtual void ShowMessages() {}  // brings the list before the user
    virtual void Beep() {}
};

// The list behind the message window: all faults and notes of a document, in the order of their finding.
class MessageList {
public:
    void SetListener(MessageListener* listener) { listener_ = listener; }

    // One line for each CR LF of the description, up to the first empty one.
    void addMessage(MessageSource source, MessageSeverity severity, std::string_view strDescription, bool bolHighlight);
    bool hasMessages() const { return !lines_.empty() && bolHasNew_; }
    // Brings the list before the user if it has something new; beeps once until it is closed or cleared.
    void ShowWithBeep();
    // The user has closed the window: the lines stay, but none of them is new any more.
    void Dismiss();
    void Clear();

    std::size_t Size() const { return lines_.size(); }
    const Message& operator[](std::size_t index) const { return lines_[index]; }
    std::string_view Description(const Message& message) const { return texts_.At(message.description); }
    bool HasFaults() const { return faults_; }  // an error or a fatal one was added

private:
    std::deque<Message> lines_;
    TextStore texts_;
    MessageListener* listener_ = nullptr;
    bool bolHasNew_ = false, bolBeeped_ = false, faults_ = false;
};

}  // namespace folioscope

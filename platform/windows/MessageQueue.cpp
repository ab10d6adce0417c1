#include "platform/windows/MessageQueue.h"

#include "platform/windows/WindowTable.h"

#include <deque>
#include <utility>

namespace {

struct QueueState {
    std::deque<MSG> messages;
    std::optional<int> quitCode; // a quit request waits until the queue is empty
};

QueueState& Queue()
{
    static QueueState queue;
    return queue;
}

} // namespace

namespace platform {

bool HasMessages()
{
    return !Queue().messages.empty();
}

std::optional<MSG> TakeMessage()
{
    auto& messages = Queue().messages;
    if (messages.empty())
        return std::nullopt;
    const MSG message = messages.front();
    messages.pop_front();
    return message;
}

bool HasQuitRequest()
{
    return Queue().quitCode.has_value();
}

std::optional<int> TakeQuitRequest()
{
    return std::exchange(Queue().quitCode, std::nullopt);
}

void DropMessagesOf(const Window& root)
{
    std::erase_if(
        Queue().messages, [&](const MSG& message) { return message.hwnd && &RootOf(*message.hwnd) == &root; });
}

void ClearMessages()
{
    Queue().messages.clear();
    Queue().quitCode.reset();
}

} // namespace platform

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (window && !platform::IsWindow(window))
        return FALSE;
    Queue().messages.push_back({ window, message, wParam, lParam });
    return TRUE;
}

void PostQuitMessage(int exitCode)
{
    Queue().quitCode = exitCode;
}

#pragma once

namespace platform {

// Lets one piece of the user's input in, asleep until there may be some with `wait`; to be called once the queue is
// empty. False when there was none, and for a caller who is reached from inside a piece of input: the next one must
// not overtake it.
bool LetInputIn(bool wait);

// While one is alive, whoever waits inside a piece of input for an answer is served all the same.
class InnerPump {
public:
    InnerPump();
    InnerPump(const InnerPump&) = delete;
    InnerPump& operator=(const InnerPump&) = delete;
    ~InnerPump();

private:
    bool outerPumping;
};

} // namespace platform

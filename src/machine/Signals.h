#pragma once

namespace tessarolyne {

// Terminate, hang-up and interrupt signals as something that an event loop can wait for: while the object
// lives, each makes the descriptor readable instead of ending the process. At most one object at a time.
class Signals {
public:
    // Throws std::system_error if the machine has no descriptors left.
    Signals();
    ~Signals();
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;

    // Readable when a signal has come.
    int Descriptor() const;
    // The number of the oldest signal not yet taken; 0 if there is none.
    int Take();
};

} // namespace tessarolyne

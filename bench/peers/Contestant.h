#pragma once

#include "bench/peers/Workload.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// A contestant's own frame with one workload's sprite made ready for it.
class Stage {
public:
    virtual ~Stage() = default;
    // Puts a 555 frame on the stage.
    virtual void Paint(const Frame& scene) = 0;
    // Draws the sprite. Only this is timed.
    virtual void Draw() = 0;
    // What is on the stage now, in 555.
    virtual Frame Look() const = 0;
};

// One library, or one way of it, to draw sprites; a column of the table.
struct Contestant {
    std::string name;
    // The workload outlives the stage. Null where the contestant cannot do it.
    std::function<std::unique_ptr<Stage>(const Workload&)> prepare;
};

// This library with each of its sets of row operations that the processor can run.
std::vector<Contestant> OwnContestants();
// The peers, each on the path that suits a workload best.
Contestant SdlContestant();
Contestant PixmanContestant();
Contestant AllegroContestant();

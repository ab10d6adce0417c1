#pragma once

#include "platform/Types.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// The designer's hands on whatever desktop is installed, which is so as long as they live: each desktop's tests bring
// their own, and all of them pass ConformanceTests.cpp. Points are client pixels of the one window.
class DesktopHands {
public:
    using Steps = std::vector<std::function<void()>>;

    DesktopHands() = default;
    DesktopHands(const DesktopHands&) = delete;
    DesktopHands& operator=(const DesktopHands&) = delete;
    virtual ~DesktopHands() = default;

    virtual void Press(POINT at) = 0; // of the left button
    virtual void MoveTo(POINT to) = 0;
    virtual void Release(POINT at) = 0;
    virtual void DoubleClick(POINT at) = 0;
    virtual void Key(int virtualKey, bool withControl = false) = 0;
    virtual void HoldKey(int virtualKey, int times) = 0;
    virtual void ClickButton() = 0; // the button 7
    virtual void CloseBox() = 0;
    virtual void PointTo(POINT at) = 0; // no event tells of it

    // What is done once the program asks. Each step finds the one before dealt with.
    virtual void ChooseFromMenu(size_t item, POINT pointerAfter) = 0;
    virtual void WorkInDialog(const Steps& steps) = 0;
    // In an open dialog.
    virtual void DisturbOwner() = 0; // with a press, a key, a click on its button and its close box
    virtual void Type(int id, const std::string& text) = 0; // in place of what stands in the field
    virtual void Click(int id) = 0; // a button or check box
    virtual void DialogKey(int virtualKey) = 0;
    virtual void DialogCloseBox() = 0;
};

std::unique_ptr<DesktopHands> MakeHands();

#pragma once

#include "objects/PictureObject.h"
#include "platform/scripted/ScriptedDesktop.h"
#include "shell/ShellContext.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VecPrinting.h"

#include <gtest/gtest.h>

#include <string>

// The editor on a scripted desktop, in a folder of its own with a dark background and the pictures of the built-in
// controls, and a designer's words for looking at it.
class EditorTest : public testing::Test {
protected:
    EditorTest();

    // Starts the editor; the tests of start-up itself do without.
    void SetUp() override;

    // Input queued on the desktop takes effect, then the idle step shows it.
    void Play();
    // Presses a command button; for Insert, types the text into the dialog that it opens.
    void Run(WORD command);
    void Insert(WORD command, const std::string& text);
    // Runs the main loop to its end and answers the exit status.
    int RunToTheEnd();

    // The panel, then the canvas.
    static constexpr int DrawingsOfAFrame = 2;
    static constexpr uint32_t BackgroundColour = 0x393939; // as the window shows it

    // A grey picture file in the folder "Image" (or in the current one once the designer has moved into it), and an
    // object that shows such a picture.
    std::string WritePicture(const std::string& name, int width, int height, uint8_t grey = 150); // answers its path
    PictureObject& AddPicture(vec pos, vec size);
    // One object of each kind, made with the command buttons and put one below the other.
    void MakeAllKinds();

    ScreenObject& ObjectAt(int32_t index) const { return *shell.document.GetObjects().at(static_cast<size_t>(index)); }
    // The caption and text of the latest message box, "caption: text"; empty when there was none.
    std::string LatestMessage() const;

    TemporaryFolder folder;
    platform::ScriptedDesktop desktop;
    ShellContext shell;
};

#pragma once

#include "objects/ScreenObject.h"
#include "objects/vec.h"
#include "platform/Types.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// One selected object.
struct SelectionEntry {
    int32_t index = 0; // the object's place in the document's list
    vec grab { 0, 0 }; // where the object was when the current drag began
};

// What the designer is doing: pointer, press and context points, the current object and the selection. It refers to
// objects by index or by borrowed pointer and owns none.
class EditorState {
public:
    // Client coordinates of the latest mouse message, left press and right press. At first the pointer is (0, 0) and
    // both presses are (-1, -1), which says that there was none; Reset makes all three (0, 0): a press that is
    // still held goes on from there.
    vec GetPointer() const { return pointer; }
    void SetPointer(vec point) { pointer = point; }
    vec GetPressPoint() const { return pressPoint; }
    void SetPressPoint(vec point) { pressPoint = point; }
    vec GetContextPoint() const { return contextPoint; }
    void SetContextPoint(vec point) { contextPoint = point; }

    // The number of objects as the status panel shows it.
    int32_t GetObjectCount() const { return objectCount; }
    void SetObjectCount(int32_t count) { objectCount = count; }
    // The object that the status panel describes, or null. Never one that has left the document.
    ScreenObject* GetCurrentObject() const { return currentObject; }
    void SetCurrentObject(ScreenObject* object) { currentObject = object; }

    // The path of the screen script last loaded or saved.
    const std::string& GetFileName() const { return fileName; }
    void SetFileName(const std::string& name) { fileName = name; }
    bool HasFileName() const { return fileName.find('.') != std::string::npos; }

    // The left button holds the mouse capture for a drag.
    bool IsDragging() const { return dragging; }
    void SetDragging(bool drags) { dragging = drags; }
    // The latest left press landed on an object.
    bool IsPressHit() const { return pressHit; }
    void SetPressHit(bool hit) { pressHit = hit; }

    // The selection, in the order in which objects joined it. Positions are below GetSelectionCount.
    size_t GetSelectionCount() const { return selection.size(); }
    int32_t GetSelectedIndex(size_t position) const { return selection[position].index; }
    vec GetGrab(size_t position) const { return selection[position].grab; }
    void SetGrab(size_t position, vec grab) { selection[position].grab = grab; }
    bool IsSelected(int32_t index) const;
    void AddToSelection(int32_t index, vec grab) { selection.push_back({ index, grab }); }
    void SelectOnly(int32_t index, vec grab);
    // Removes the first entry with that index; nothing when there is none.
    void RemoveFromSelection(int32_t index);
    void ClearSelection() { selection.clear(); }

    // The status panel is drawn once the window is known and the origin is not (0, 0).
    void SetWindow(HWND mainWindow) { window = mainWindow; }
    void SetPanelOrigin(vec origin) { panelOrigin = origin; }
    int32_t GetMargin() const { return margin; }
    // Draws pointer, layer total and current object on the window (shell/StatusPanel.cpp). False when it was skipped.
    bool DrawStatusPanel() const;

    // Back to an empty screen; flags, window and panel stay as they are.
    void Reset();

private:
    vec pointer { 0, 0 };
    vec pressPoint { -1, -1 };
    vec contextPoint { -1, -1 };
    int32_t objectCount = 0;
    ScreenObject* currentObject = nullptr;
    HWND window = nullptr;
    vec panelOrigin { 0, 0 };
    int32_t lineHeight = 20;
    int32_t margin = 10;
    std::string fileName;
    bool dragging = false;
    bool pressHit = false;
    std::vector<SelectionEntry> selection;
};

#pragma once

// What a key does to the screen: arrows nudge the selection; Delete, Page Up, Page Down and P act on the object under
// the pointer; Ctrl+S saves; Escape closes the editor. Other keys do nothing. `virtualKey` is a VK_ code.
void EditWithKey(int virtualKey);

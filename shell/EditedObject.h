#pragma once

#include "platform/User.h"
#include "shell/ObjectLookup.h"

// The object that an open property dialog edits. The main window goes on handling its messages meanwhile and may delete
// the object: it is looked for in the document each time.
template <class Kind> class EditedObject {
public:
    // The object at the context point. Null where there is none of the kind; the dialog is then ended.
    Kind* Open(HWND dialog)
    {
        object = FindContextObject();
        Kind* found = Get();
        if (!found)
            Close(dialog);
        return found;
    }

    // Null once the object has left the document.
    Kind* Get() const
    {
        for (const auto& present : Shell().document.GetObjects())
            if (present.get() == object)
                return dynamic_cast<Kind*>(present.get());
        return nullptr;
    }

    // The dialog's confirm button: `take(dialog, object)` writes into the object, if it is still there, and answers
    // whether the dialog is done.
    void Confirm(HWND dialog, bool (*take)(HWND, Kind&))
    {
        Kind* found = Get();
        if (!found || take(dialog, *found))
            Close(dialog);
    }

    // Every property dialog ends with 1.
    void Close(HWND dialog)
    {
        object = nullptr;
        EndDialog(dialog, 1);
    }

private:
    const ScreenObject* object = nullptr; // compared, never looked into
};

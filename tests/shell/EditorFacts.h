#pragma once

#include "platform/scripted/ScriptedDesktop.h"
#include "shell/ShellContext.h"

#include <map>
#include <string>

// What can be seen of something at one moment: its properties in words.
using Facts = std::map<std::string, std::string>;

// Names the objects of a document after their kind, in the order in which they are met: picture, picture2, word...
class ObjectNames {
public:
    // Names the objects that are new and forgets those that have gone.
    void Refresh(const ScreenDocument& document);
    std::string Of(const ScreenObject* object) const; // "none" for null
    const ScreenObject* Find(const std::string& name) const; // null when there is none

private:
    std::map<const ScreenObject*, std::string> names;
    std::map<ObjectKind, int> met;
};

Facts FactsOf(const ShellContext& shell, const ObjectNames& names);
Facts FactsOf(const ScreenObject& object);
// Of a dialog: its title and its controls, which go by the names in `ids`. A list shows its choice, then its entries.
Facts FactsOf(const platform::DialogDriver& dialog, const std::map<std::string, int>& ids);

#include "resources/MenuTemplates.h"

#include "resources/ResourceIds.h"

namespace {

constexpr platform::MenuItemTemplate generalItems[] = {
    { MenuObjectProperties, "物件特性" },
    { MenuToBottom, "推至最下層" },
    { MenuToTop, "拉至最上層" },
};

constexpr platform::MenuItemTemplate animationItems[] = {
    { MenuPlay, "Play" },
    { MenuPause, "Pause" },
    { MenuRestart, "Restart" },
    { MenuAnimationProperties, "動畫特性" },
};

constexpr platform::MenuItemTemplate checkBoxItems[] = {
    { MenuToggleCheckBox, "改變 CheckBox 狀態" },
    { MenuCheckBoxProperties, "CheckBox 特性" },
};

constexpr platform::MenuItemTemplate selectboxItems[] = {
    { MenuSelectboxChoices, "變更選項" },
};

constexpr platform::MenuTemplate templates[] = {
    { "PopUpMenu", generalItems },
    { "AnimationPopMenu", animationItems },
    { "CheckBoxPopMenu", checkBoxItems },
    { "SelectboxPopMenu", selectboxItems },
};

} // namespace

const std::span<const platform::MenuTemplate> menuTemplates = templates;

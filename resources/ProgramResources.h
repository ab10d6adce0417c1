#pragma once

#include "platform/Resources.h"
#include "resources/ResourceIds.h"

// Everything that the editor brings along: icons, menus and dialog templates. Its address is the instance handle.
const platform::Module& ProgramResources();

#include "resources/ProgramResources.h"

#include "resources/DialogTemplates.h"
#include "resources/IconPictures.h"
#include "resources/MenuTemplates.h"

const platform::Module& ProgramResources()
{
    static const platform::Icon icons[] = { largeIcon, smallIcon };
    static const platform::Module module { .dialogs = dialogTemplates, .menus = menuTemplates, .icons = icons };
    return module;
}

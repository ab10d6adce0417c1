#pragma once

#include "platform/Resources.h"

#include <span>

extern const std::span<const platform::DialogTemplate> dialogTemplates;

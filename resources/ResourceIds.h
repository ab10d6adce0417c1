#pragma once

#include <cstdint>

// The numbers by which the shell and the resources know each other.

constexpr uint16_t LargeIconId = 107;
constexpr uint16_t SmallIconId = 108;

// Items of the context menus.
constexpr uint16_t MenuObjectProperties = 32772;
constexpr uint16_t MenuToBottom = 32774;
constexpr uint16_t MenuToTop = 32775;
constexpr uint16_t MenuPlay = 32776;
constexpr uint16_t MenuPause = 32777;
constexpr uint16_t MenuRestart = 32778;
constexpr uint16_t MenuAnimationProperties = 32779;
constexpr uint16_t MenuToggleCheckBox = 32780;
constexpr uint16_t MenuCheckBoxProperties = 32781;
constexpr uint16_t MenuSelectboxChoices = 32782;

// Controls of the dialogs; every dialog's first button has ConfirmButton.
constexpr int PictureModeList = 1002;
constexpr int PictureWidthField = 1003;
constexpr int PictureHeightField = 1004;
constexpr int PictureAlphaField = 1005;
constexpr int ConfirmButton = 1006;
constexpr int AnimationWidthField = 1007;
constexpr int AnimationHeightField = 1008;
constexpr int AnimationSectionList = 1010;
constexpr int AnimationIntervalField = 1011;
constexpr int ButtonWidthField = 1012;
constexpr int ButtonHeightField = 1013;
constexpr int ButtonSectionList = 1014;
constexpr int PictureBoundaryCheck = 1015;
constexpr int ButtonBoundaryCheck = 1017;
constexpr int PictureEffectList = 1020;
constexpr int WordCancelButton = 1022;
constexpr int WordTextField = 1023;
constexpr int WordRedField = 1024;
constexpr int WordGreenField = 1025;
constexpr int WordBlueField = 1026;
constexpr int CheckBoxTextField = 1027;
constexpr int CheckBoxCancelButton = 1031;
constexpr int ChoiceList = 1032;
constexpr int NewChoiceField = 1034;
constexpr int ChoicesDoneButton = 1035;
constexpr int DeleteChoiceList = 1036;
constexpr int DeleteChoiceButton = 1037;

#include "shell/PictureDialog.h"

#include "objects/PictureObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"
#include "shell/EditedObject.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <optional>

namespace {

EditedObject<PictureObject> edited;

constexpr size_t alphaBufferSize = 50;
constexpr int32_t largestAlpha = 255;

// In the order of the lists.
constexpr PictureMode modes[] = { ModeMoving, ModeStatic };
constexpr EffectKind effects[]
    = { EffectNone, EffectFromTop, EffectFromBottom, EffectFromLeft, EffectFromRight, EffectFadeOut };

template <class Value, size_t count> int PlaceOf(const Value (&values)[count], Value value)
{
    const auto* found = std::find(std::begin(values), std::end(values), value);
    return found == std::end(values) ? -1 : static_cast<int>(found - std::begin(values));
}

void OnInit(HWND dialog)
{
    const PictureObject* picture = edited.Open(dialog);
    if (!picture)
        return;
    for (const char* mode : { u8"移動物件"_big5, u8"靜態影像"_big5 })
        AddItem(dialog, PictureModeList, mode);
    SelectItem(dialog, PictureModeList, PlaceOf(modes, picture->GetMode()));
    for (const char* effect : { u8"沒有特效"_big5, u8"由上面出現"_big5, u8"由下面出現"_big5, u8"由左邊出現"_big5,
             u8"由右邊出現"_big5, u8"淡出"_big5 })
        AddItem(dialog, PictureEffectList, effect);
    SelectItem(dialog, PictureEffectList, PlaceOf(effects, picture->GetEffect()));
    SetFieldNumber(dialog, PictureAlphaField, picture->GetAlpha());
    SetFieldNumber(dialog, PictureWidthField, picture->GetView().x);
    SetFieldNumber(dialog, PictureHeightField, picture->GetView().y);
    SetTick(dialog, PictureBoundaryCheck, picture->GetBoundaryCheck());
}

bool IsNumber(const std::string& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void SayRefused(HWND dialog, const char* format, auto value, const char* caption)
{
    char message[128];
    std::snprintf(message, sizeof message, format, value);
    MessageBoxA(dialog, message, caption, MB_OK);
}

// The alpha typed, or nothing after the message that refuses it.
std::optional<uint32_t> ReadAlpha(HWND dialog)
{
    const std::string text = GetFieldText(dialog, PictureAlphaField, alphaBufferSize);
    if (!IsNumber(text)) {
        SayRefused(dialog, u8"輸入值 = %s 是不被接受的, 請輸入數字"_big5, text.c_str(), u8"輸入的 Alpha 值有誤"_big5);
        return std::nullopt;
    }
    const int32_t alpha = DecimalValue(text);
    if (alpha > largestAlpha) {
        SayRefused(dialog, u8"輸入值 = %d 並不在 0 ~ 255 之間"_big5, alpha, u8"Alpha 值的範圍不合理"_big5);
        return std::nullopt;
    }
    return static_cast<uint32_t>(alpha);
}

// Mode and effect are taken over even when the alpha is then refused and the dialog stays open.
bool TakeProperties(HWND dialog, PictureObject& picture)
{
    const int mode = SelectedItem(dialog, PictureModeList);
    if (mode >= 0)
        picture.SetMode(modes[mode]);
    const int effect = SelectedItem(dialog, PictureEffectList);
    if (effect >= 0)
        picture.SetEffect(effects[effect]);

    const uint32_t oldAlpha = picture.GetAlpha();
    const std::optional<uint32_t> alpha = ReadAlpha(dialog);
    if (!alpha) {
        SetFieldNumber(dialog, PictureAlphaField, oldAlpha);
        return false;
    }
    picture.SetAlpha(*alpha);
    picture.SetBoundaryCheck(IsTicked(dialog, PictureBoundaryCheck));
    return true;
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton)
        edited.Confirm(dialog, TakeProperties);
}

} // namespace

INT_PTR PictureDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand }, dialog, message, wParam);
}

#include "shell/PictureDialog.h"

#include "objects/PictureObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/DialogFields.h"
#include "shell/DialogRouting.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

PictureObject* picture = nullptr; // while the dialog is open

constexpr size_t alphaBufferSize = 50;
constexpr uint32_t largestAlpha = 255;

// In the order of the lists.
constexpr PictureMode modes[] = { ModeMoving, ModeStatic };
constexpr EffectKind effects[]
    = { EffectNone, EffectFromTop, EffectFromBottom, EffectFromLeft, EffectFromRight, EffectFadeOut };

template <class Value, size_t count> int PlaceOf(const Value (&values)[count], Value value)
{
    const auto* found = std::find(std::begin(values), std::end(values), value);
    return found == std::end(values) ? -1 : static_cast<int>(found - std::begin(values));
}

void ShowAlpha(HWND dialog)
{
    SetFieldNumber(dialog, PictureAlphaField, picture->GetAlpha());
}

void OnInit(HWND dialog)
{
    picture = FindEditedObject<PictureObject>();
    if (!picture) {
        EndDialog(dialog, 1);
        return;
    }
    for (const char* mode : { u8"移動物件"_big5, u8"靜態影像"_big5 })
        AddItem(dialog, PictureModeList, mode);
    SelectItem(dialog, PictureModeList, PlaceOf(modes, picture->GetMode()));
    for (const char* effect : { u8"沒有特效"_big5, u8"由上面出現"_big5, u8"由下面出現"_big5, u8"由左邊出現"_big5,
             u8"由右邊出現"_big5, u8"淡出"_big5 })
        AddItem(dialog, PictureEffectList, effect);
    SelectItem(dialog, PictureEffectList, PlaceOf(effects, picture->GetEffect()));
    ShowAlpha(dialog);
    SetFieldNumber(dialog, PictureWidthField, picture->GetView().x);
    SetFieldNumber(dialog, PictureHeightField, picture->GetView().y);
    SetTick(dialog, PictureBoundaryCheck, picture->GetBoundaryCheck());
}

bool IsNumber(const std::string& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void Refuse(HWND dialog, const char* format, auto value, const char* caption)
{
    char message[128];
    std::snprintf(message, sizeof message, format, value);
    MessageBoxA(dialog, message, caption, MB_OK);
    ShowAlpha(dialog);
}

// Mode and effect are taken over even when the alpha is then refused and the dialog stays open.
void Confirm(HWND dialog)
{
    const int mode = SelectedItem(dialog, PictureModeList);
    if (mode >= 0)
        picture->SetMode(modes[mode]);
    const int effect = SelectedItem(dialog, PictureEffectList);
    if (effect >= 0)
        picture->SetEffect(effects[effect]);

    const std::string text = GetFieldText(dialog, PictureAlphaField, alphaBufferSize);
    if (!IsNumber(text)) {
        Refuse(dialog, u8"輸入值 = %s 是不被接受的, 請輸入數字"_big5, text.c_str(), u8"輸入的 Alpha 值有誤"_big5);
        return;
    }
    const auto alpha = static_cast<uint32_t>(DecimalValue(text));
    if (alpha > largestAlpha) {
        Refuse(dialog, u8"輸入值 = %d 並不在 0 ~ 255 之間"_big5, alpha, u8"Alpha 值的範圍不合理"_big5);
        return;
    }
    picture->SetAlpha(alpha);
    picture->SetBoundaryCheck(IsTicked(dialog, PictureBoundaryCheck));
    picture = nullptr;
    EndDialog(dialog, 1);
}

void OnCommand(HWND dialog, int id)
{
    if (id == ConfirmButton && picture)
        Confirm(dialog);
}

} // namespace

INT_PTR PictureDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    return RouteDialogMessage({ OnInit, OnCommand }, dialog, message, wParam);
}

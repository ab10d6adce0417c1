#include "platform/DesktopEvents.h"
#include "platform/scripted/ScriptedDesktop.h"
#include "tests/platform/conformance/DesktopHands.h"

namespace {

class ScriptedHands final : public DesktopHands {
public:
    void Press(POINT at) override { desktop.Press(at.x, at.y); }
    void MoveTo(POINT to) override { desktop.MoveTo(to.x, to.y); }
    void Release(POINT at) override { desktop.Release(at.x, at.y); }
    void DoubleClick(POINT at) override { desktop.DoubleClick(at.x, at.y); }
    void Key(int virtualKey, bool withControl) override { desktop.Key(virtualKey, withControl ? MK_CONTROL : 0); }
    void HoldKey(int virtualKey, int times) override
    {
        for (int i = 0; i < times; ++i)
            desktop.Key(virtualKey);
    }
    void ClickButton() override { desktop.ClickButton(7); }
    void CloseBox() override { desktop.CloseBox(); }
    void PointTo(POINT at) override { desktop.PointTo(at); }

    void ChooseFromMenu(size_t item, POINT pointerAfter) override
    {
        desktop.AnswerMenu(static_cast<uint32_t>(11 + item), pointerAfter);
    }
    void WorkInDialog(const Steps& steps) override
    {
        desktop.OnDialog([this, steps](platform::DialogDriver& driver) {
            dialog = &driver;
            for (const auto& step : steps)
                step();
        });
    }
    void DisturbOwner() override
    {
        platform::Window& owner = *desktop.MainWindow();
        platform::PostMouse(owner, WM_LBUTTONDOWN, { 50, 50 }, MK_LBUTTON);
        platform::PostKeyDown(owner, VK_DELETE);
        platform::ButtonClicked(*GetDlgItem(&owner, 7));
        platform::CloseBoxClicked(owner);
    }
    void Type(int id, const std::string& text) override { dialog->SetText(id, text); }
    void Click(int id) override
    {
        if (GetDlgItem(dialog->Handle(), id)->kind == platform::WindowKind::CheckBox)
            dialog->Check(id, !dialog->IsChecked(id));
        else
            dialog->Press(id);
    }
    void DialogKey(int virtualKey) override { dialog->Key(virtualKey); }
    void DialogCloseBox() override { dialog->CloseBox(); }

private:
    platform::ScriptedDesktop desktop;
    platform::DialogDriver* dialog = nullptr; // while its steps are made
};

} // namespace

std::unique_ptr<DesktopHands> MakeHands()
{
    return std::make_unique<ScriptedHands>();
}

#pragma once

#include "platform/qt/TopLevelPlace.h"

#include <QWidget>

namespace platform {

// A property dialog: a modal window over its owner. Escape and Enter are reported and do nothing by themselves.
class DialogWidget final : public QWidget {
public:
    // `owner` may be null.
    DialogWidget(Window& dialog, QWidget* owner, DesktopState& shared);

    // Shows the record's fields; the controls have their own.
    void Mirror();
    // To be called once the controls are there.
    void WatchKeys();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    bool ReportKey(const QKeyEvent& event);
    void FocusFirstControl();
    bool IsShown() const { return state.widgets.Shows(*this, record); }

    Window& record;
    DesktopState& state;
    TopLevelPlace place;
};

} // namespace platform

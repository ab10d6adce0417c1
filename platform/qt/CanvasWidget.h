#pragma once

#include "platform/qt/TopLevelPlace.h"

#include <QWidget>

namespace platform {

// A top-level window of the program: shows its surface and reports mouse and keys in client coordinates.
class CanvasWidget final : public QWidget {
public:
    CanvasWidget(Window& window, DesktopState& shared);

    // Shows the record's fields.
    void Mirror();
    // The surface was drawn to.
    void OnDrawn();
    // Paints at once what was drawn to the surface since the last painting.
    void Flush();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void ReportMouse(QPoint point, Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons, UINT message);
    void ReportButton(const QMouseEvent& event, UINT leftMessage, UINT rightMessage);
    bool IsShown() const { return state.widgets.Shows(*this, record); }

    Window& record;
    DesktopState& state;
    TopLevelPlace place;
    bool drawn = false;
};

} // namespace platform

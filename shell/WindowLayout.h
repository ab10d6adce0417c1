#pragma once

// The main window's client area: the canvas on the left (ScreenWidth by ScreenHeight), the command buttons and below
// them the status panel in the strip on its right.
constexpr int ClientWidth = 1000;
constexpr int ClientHeight = 600;
constexpr int PanelTop = 400;

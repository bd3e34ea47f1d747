#pragma once

#include "panels/PanelCanvas.h"

#include <QString>

class QPainter;

namespace steward {

class BitmapImage;
class PanelResources;

// A PanelCanvas on a QPainter. The text boxes' text goes through a string kept by the control,
// so that a paint reuses its storage.
class QtPanelCanvas : public PanelCanvas {
  public:
    QtPanelCanvas(QPainter& painter, PanelResources& resources, const BitmapImage* picture,
                  QString& scratch)
        : painter_(painter), resources_(resources), picture_(picture), scratch_(scratch)
    {
    }

    void FillColor(const Rect& rect, std::uint32_t color) override;
    void DrawLine(int x0, int y0, int x1, int y1, std::uint32_t color) override;
    void DrawCell(const FontCell& cell, int x, int y, std::uint32_t color) override;
    void DrawBoxText(int x, int y, const char* text, std::uint32_t color) override;
    void DrawPicture(int x, int y, int width, int height, int sourceX, int sourceY) override;
    void DrawMappedBitmap(int id, int x, int y) override;

  private:
    QPainter& painter_;
    PanelResources& resources_;
    const BitmapImage* picture_;
    QString& scratch_;
};

} // namespace steward

// SPDX-License-Identifier: GPL-3.0-or-later
// A surface as fine as a widget's, but for a zoom: a document that is laid out for it comes out
// larger or smaller as a whole, and stays as it is.
#pragma once

#include <QPaintDevice>
#include <QWidget>
#include <cmath>

namespace tallyroll {

class ZoomedDevice : public QPaintDevice {
 public:
  explicit ZoomedDevice(const QWidget& widget) : widget_(widget) {}

  void SetZoom(double zoom) { zoom_ = zoom; }
  QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmDpiX:
        return static_cast<int>(std::lround(widget_.logicalDpiX() * zoom_));
      case PdmDpiY:
        return static_cast<int>(std::lround(widget_.logicalDpiY() * zoom_));
      case PdmWidth:
        return widget_.width();
      case PdmHeight:
        return widget_.height();
      case PdmDevicePixelRatio:
        return static_cast<int>(std::lround(widget_.devicePixelRatioF()));
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(widget_.devicePixelRatioF() * devicePixelRatioFScale());
      default:
        return QPaintDevice::metric(metric);
    }
  }

 private:
  const QWidget& widget_;
  double zoom_ = 1;
};

}  // namespace tallyroll

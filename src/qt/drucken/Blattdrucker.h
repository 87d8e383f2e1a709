#pragma once

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>

namespace kw {

/// A printer with the paper that it is set to: left alone, the toolkit takes its own. The sheet stands upright.
class Blattdrucker : public QPrinter {
  public:
    static constexpr int Dpi = 600;

    explicit Blattdrucker(const QPrinterInfo &info) : QPrinter(info, QPrinter::HighResolution) {
        setResolution(Dpi);
        setFullPage(true);
        setPageSize(info.defaultPageSize());
        setPageOrientation(QPageLayout::Portrait);
    }
    /// What of the sheet can't be reached, in points.
    QMarginsF Ränder() const {
        QPageLayout blatt = pageLayout();
        blatt.setUnits(QPageLayout::Point);
        return blatt.minimumMargins();
    }
    /// Of the sheet, in points.
    double Höhe() const { return pageLayout().fullRect(QPageLayout::Point).height(); }
};

} // namespace kw

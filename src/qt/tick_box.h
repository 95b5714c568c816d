#pragma once

#include "qt/units.h"

#include <QCheckBox>

namespace qt {

/// A check box that draws itself from its palette, so that its square is seen on every ground.
class TickBox : public QCheckBox {
public:
    TickBox(Units const& units, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    [[nodiscard]] bool hitButton(QPoint const& place) const override;
    /// A person chooses between on and off only.
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF square() const;
    [[nodiscard]] QRect caption_place() const;

    Units const& units_;
};

} // namespace qt

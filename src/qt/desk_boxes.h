#pragma once

#include "platform/boxes.h"
#include "qt/codec.h"

class QWidget;

namespace qt {

/// The desktop's boxes: QMessageBox and QInputDialog.
class DeskBoxes : public platform::Boxes {
public:
    explicit DeskBoxes(Codec const& codec) : codec_(codec) {}

    platform::Answer show(platform::MessageBox const& box) override;
    std::string ask(platform::InputBox const& box) override;
    std::string choose_file(platform::FileBox const& box) override;

    /// The window that boxes belong to while it is on show.
    QWidget* owner = nullptr;

private:
    [[nodiscard]] QString shown(std::string_view words) const;
    [[nodiscard]] QWidget* parent() const;

    Codec const& codec_;
};

} // namespace qt

#pragma once

#include "forms/settings.h"
#include "qt/bound_window.h"
#include "qt/codec.h"
#include "qt/settings_window.h"
#include "qt/units.h"

namespace qt {

/// Shows `settings`.
class SettingsBinder {
public:
    /// All must outlive the binder.
    SettingsBinder(forms::Settings& form, QWidget& owner, Codec const& codec, Units const& units);

    void show() { frame_.show(); }
    [[nodiscard]] QWidget& window() { return window_; }

private:
    void bind_identity(forms::Settings& form);
    void bind_sound(forms::Settings& form);
    void bind_options(forms::Settings& form);
    void bind_rows(forms::Settings& form, SettingsButtonsPage const& page);
    void bind_away(forms::Settings& form);
    void bind_admin(forms::Settings& form);

    SettingsWindow window_;
    BoundWindow frame_;
};

} // namespace qt

#pragma once

#include "forms/frm_main.h"
#include "platform/boxes.h"
#include "platform/environment.h"

#include <string>
#include <string_view>

namespace core {

/// How a person gets a display name.
class Naming {
public:
    Naming(forms::FrmMain& frmMain, platform::Boxes& boxes,
           platform::Environment const& environment);

    /// The box of a first run. There is no test of the answer: an empty name is a name.
    void first_name();
    /// Change of name: asks, announces, saves. An empty answer changes nothing. Raises a Failure.
    void Command1();
    /// Asks for a name when there is none; nothing runs it.
    void makename();

private:
    [[nodiscard]] std::string ask(std::string_view title, std::string_view default_text);
    void rebuild_user(std::string_view account);

    forms::FrmMain& frmMain_;
    platform::Boxes& boxes_;
    platform::Environment const& environment_;
};

} // namespace core

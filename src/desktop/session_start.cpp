#include "desktop/session_start.h"

#include "text/failure.h"

#include <utility>

namespace desktop {

namespace {

constexpr int registry_failure = 26001;
constexpr char const* failure_source = "vexloim.cRegistry";

} // namespace

std::string cRegistry::place() const
{
    return std::to_string(static_cast<int>(ClassKey)) + "',Section: '" + SectionKey;
}

std::string cRegistry::Value() const
{
    auto const value = entries_.read(ValueKey);
    return value.empty() ? Default : value;
}

void cRegistry::Value(std::string_view value)
{
    if (!entries_.write(ValueKey, value)) {
        throw text::Failure("Failed to set registry value Key: '" + place() + "',Key: '" +
                                ValueKey + "' to value: '" + std::string(value) + "'",
                            registry_failure, failure_source);
    }
}

bool cRegistry::DeleteValue()
{
    if (!entries_.remove(ValueKey)) {
        // The text stops without a closing apostrophe, as it always has.
        throw text::Failure("Failed to delete registry Key: '" + place() + "',Key: '" + ValueKey,
                            registry_failure, failure_source);
    }
    return true;
}

SessionStart::SessionStart(Uses uses, std::string program)
    : uses_(uses), program_(std::move(program))
{
    uses_.frmMain.followsessionstart.attach([this] { reconcile(); });
    uses_.frmMain.adoptoldshortcut.attach([this] { adopt_old_shortcut(); });
}

cRegistry SessionStart::entry() const
{
    cRegistry registry(uses_.entries);
    registry.SectionKey = R"(Software\Microsoft\Windows\CurrentVersion\Run)";
    registry.ValueKey = session_entry;
    return registry;
}

void SessionStart::reconcile()
{
    auto registry = entry();
    bool const there = !registry.Value().empty();
    if (uses_.settings.autostartup.on() && !there) {
        registry.Value("\"" + program_ + "\" /m");
    } else if (uses_.settings.autostartup.value() == 0 && there) {
        registry.DeleteValue();
    }
}

void SessionStart::adopt_old_shortcut()
{
    auto const shortcut =
        uses_.environment.value("USERPROFILE") + "/Start Menu/Programs/Startup/Vexlo IM.lnk";
    if (uses_.files.exists(shortcut)) {
        uses_.files.remove(shortcut);
        uses_.settings.autostartup.set(1);
    }
}

} // namespace desktop

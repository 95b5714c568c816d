#pragma once

#include "core/leaving.h"
#include "core/naming.h"
#include "core/paths.h"
#include "core/settings_store.h"
#include "forms/forms.h"
#include "network/transport.h"
#include "network/trouble.h"
#include "platform/platform.h"
#include "popups/pool.h"
#include "records/rolling_log.h"
#include "text/failure.h"

#include <utility>

namespace core {

/// From process start to steady state, in the order in which it happens.
class StartUp {
public:
    struct Uses {
        forms::Forms& forms;
        platform::Platform& platform;
        Paths const& paths;
        std::string update_address; ///< of the installer
        SettingsStore& settings;
        Naming& naming;
        Leaving& leaving;
        popups::Pool& pool;
        records::RollingLog& log;
        network::Transport& transport;
        network::Trouble& trouble;
    };

    explicit StartUp(Uses uses) : uses_(std::move(uses)) {}

    /// The tray window's load; the main window's load lies inside it. Raises a Failure until the
    /// sockets are set up; from there on each failure is handled and the next step follows.
    void run();

private:
    /// Whether the program starts hidden and without a word.
    [[nodiscard]] bool silent() const;
    void refuse_second_copy();
    void show_splash();
    void start_hidden();
    void start_shown();

    void load_main();
    void prepare_main();
    void first_run();
    void load_files();
    void go_online();
    void discover();
    void place_history();
    void settle();

    template <typename Step>
    bool step(Step&& todo)
    {
        try {
            todo();
            return true;
        } catch (text::Failure const& failure) {
            failed(failure);
            return false;
        }
    }
    void failed(text::Failure const& failure);
    void port_is_taken();
    void network_is_down(text::Failure const& failure);
    void progress(int value);

    Uses uses_;
};

} // namespace core

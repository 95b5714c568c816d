#pragma once

namespace terminal {

/// What a script learns from the end of a command.
enum ExitStatus {
    done = 0,
    failed = 1,        ///< the network or the machine refused, standard output included
    wrong_usage = 2,   ///< the command line makes no sense
    nobody = 3,        ///< nobody has that name, or nobody but the sender
    heard_nothing = 4, ///< the time was over before anybody said anything
    in_use = 5,        ///< another program holds the port
};

} // namespace terminal

#pragma once

#include <string>
#include <vector>

namespace platform {

/// The processes of this user.
class Processes {
public:
    struct Entry {
        long id = 0;
        std::string executable; ///< the file name of what it runs
    };

    virtual ~Processes() = default;

    /// All but the own one.
    [[nodiscard]] virtual std::vector<Entry> others() const = 0;
    /// Ends a process without warning; one that is gone or refuses is passed over.
    virtual void kill(long id) = 0;
};

} // namespace platform

#pragma once

#include "platform/process.h"
#include "qt/codec.h"

#include <QString>

namespace qt {

class DeskProcess : public platform::Process {
public:
    DeskProcess(Codec const& codec, QString command_line, QString program_folder);

    [[nodiscard]] bool other_copy_runs() override;
    [[nodiscard]] std::string command_line() const override;
    [[nodiscard]] std::string program_folder() const override;
    void store_setting(std::string_view section, std::string_view name,
                       std::string_view value) override;
    [[noreturn]] void end(int status) override;

    /// The file that a running copy holds locked: one for each user and program folder.
    [[nodiscard]] QString lock_path() const;

private:
    Codec const& codec_;
    QString command_line_;
    QString program_folder_;
};

} // namespace qt

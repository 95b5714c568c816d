#pragma once

#include "platform/files.h"
#include "qt/codec.h"

#include <QString>

#include <string>

namespace qt {

/// Files on disk. The program folder's own path may hold characters that the office's set lacks; a
/// path that begins with its text is led to the real folder.
class DeskFiles : public platform::Files {
public:
    DeskFiles(Codec const& codec, QString program_folder);

    [[nodiscard]] bool exists(std::string_view path) const override;
    [[nodiscard]] bool is_file(std::string_view path) const override;
    [[nodiscard]] std::string read(std::string_view path) const override;
    void write(std::string_view path, std::string_view content) override;
    void remove(std::string_view path) override;
    void make_folder(std::string_view path) override;

    /// The real path behind a path of the logic.
    [[nodiscard]] QString real(std::string_view path) const;

private:
    Codec const& codec_;
    QString folder_;
    std::string folder_text_;
};

} // namespace qt

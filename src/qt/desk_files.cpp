#include "qt/desk_files.h"

#include "text/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace qt {

namespace {

/// The failure of the last file operation, in the words that a person of the office may read.
[[noreturn]] void refuse(int error)
{
    switch (error) {
    case ENOENT:
        throw text::Failure("File not found", 53, "file");
    case EACCES:
    case EPERM:
    case EROFS:
        throw text::Failure("Permission denied", 70, "file");
    case ENOSPC:
    case EDQUOT:
        throw text::Failure("Disk full", 61, "file");
    default:
        throw text::Failure("Path/File access error", 75, "file");
    }
}

/// Writes over the whole file. Returns the error's number, or 0.
int written(int file, std::string_view content)
{
    auto const size = static_cast<off_t>(content.size());
    while (!content.empty()) {
        auto const count = ::write(file, content.data(), content.size());
        if (count < 0 && errno != EINTR) {
            int const error = errno;
            static_cast<void>(ftruncate(file, size - static_cast<off_t>(content.size())));
            return error;
        }
        content.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return ftruncate(file, size) == 0 ? 0 : errno;
}

} // namespace

DeskFiles::DeskFiles(Codec const& codec, QString program_folder)
    : codec_(codec), folder_(std::move(program_folder)), folder_text_(codec.from_unicode(folder_))
{
}

QString DeskFiles::real(std::string_view path) const
{
    if (path.starts_with(folder_text_)) {
        return folder_ + codec_.to_unicode(path.substr(folder_text_.size()));
    }
    return codec_.to_unicode(path);
}

bool DeskFiles::exists(std::string_view path) const
{
    return QFileInfo::exists(real(path));
}

bool DeskFiles::is_file(std::string_view path) const
{
    return QFileInfo(real(path)).isFile();
}

std::string DeskFiles::read(std::string_view path) const
{
    QFile file(real(path));
    errno = 0;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        refuse(errno);
    }
    std::string content(static_cast<std::size_t>(file.size()), '\0');
    auto const count = file.read(content.data(), file.size());
    if (count < 0 || file.error() != QFileDevice::NoError) {
        refuse(errno);
    }
    content.resize(static_cast<std::size_t>(count));
    return content;
}

void DeskFiles::write(std::string_view path, std::string_view content)
{
    auto const name = QFile::encodeName(real(path));
    int const file = open(name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) {
        refuse(errno);
    }
    // The old content is written over and its rest cut off afterwards, so that there is no moment
    // at which a process that is killed leaves an empty file: what only grew, such as a log, stays.
    int const error = written(file, content);
    ::close(file);
    if (error != 0) {
        refuse(error);
    }
}

void DeskFiles::remove(std::string_view path)
{
    errno = 0;
    if (!QFile::remove(real(path))) {
        refuse(errno);
    }
}

void DeskFiles::make_folder(std::string_view path)
{
    errno = 0;
    if (!QDir().mkdir(real(path))) {
        refuse(errno);
    }
}

} // namespace qt

#include "qt/desk_files.h"

#include "text/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
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

std::string DeskFiles::read(std::string_view path) const
{
    QFile file(real(path));
    errno = 0;
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(errno);
    }
    auto const content = file.readAll().toStdString();
    if (file.error() != QFileDevice::NoError) {
        refuse(errno);
    }
    return content;
}

void DeskFiles::write(std::string_view path, std::string_view content)
{
    QFile file(real(path));
    errno = 0;
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        refuse(errno);
    }
    if (file.write(content.data(), static_cast<qint64>(content.size())) !=
        static_cast<qint64>(content.size())) {
        refuse(errno);
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

#include "disk.h"

#include <QFile>
#include <QLocale>

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {

namespace {

void require(bool works)
{
    if (!works) {
        std::perror("the disk");
        std::abort();
    }
}

} // namespace

Disk::Disk() : codec_(qt::code_page_of(QLocale::c())), files(codec_, folder_.path())
{
    require(folder_.isValid());
}

std::string Disk::path(std::string_view name) const
{
    return folder_.path().toStdString() + "/" + std::string(name);
}

void Disk::plain_write(std::string const& path, std::string_view content)
{
    int const file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    require(file >= 0 &&
            write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()));
    close(file);
}

std::string Disk::plain_read(std::string const& path)
{
    int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat about {};
    require(file >= 0 && fstat(file, &about) == 0);
    std::string content(static_cast<std::size_t>(about.st_size), '\0');
    require(read(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()));
    close(file);
    return content;
}

long Disk::writes()
{
    std::ifstream table("/proc/self/io");
    std::string name;
    for (long value = 0; table >> name >> value;) {
        if (name == "syscw:") {
            return value;
        }
    }
    return 0;
}

} // namespace bench

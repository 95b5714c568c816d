#include "terminal/asked.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace terminal {

namespace {

constexpr int patience_ms = 5000;

/// As here, but that nothing is translated: the answer is read by a program.
QProcessEnvironment plain_environment()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    return environment;
}

/// Where the tools of an administrator lie, which need not be on the path of others.
QStringList administration()
{
    return {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")};
}

} // namespace

std::optional<Answer> ask(QString const& program, QStringList const& arguments)
{
    auto path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        path = QStandardPaths::findExecutable(program, administration());
    }
    if (path.isEmpty()) {
        return {};
    }
    QProcess process;
    process.setProcessEnvironment(plain_environment());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(path, arguments);
    if (!process.waitForFinished(patience_ms) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished(patience_ms);
        return {};
    }
    return Answer{process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput())};
}

} // namespace terminal

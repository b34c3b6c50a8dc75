// SPDX-License-Identifier: MIT
// The built tool, run as a script would run it, and what it left on the disk.
#pragma once

#include <QFile>
#include <QProcess>

namespace ornavo::testing {

struct Outcome {
    int code;
    QByteArray out, err;
};

inline Outcome RunTool(const QStringList& words) {
    QProcess tool;
    tool.start(QStringLiteral(ORNAVO_BINARY_DIR "/ornavo-cli"), words);
    tool.waitForFinished(60'000);
    return {tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1, tool.readAllStandardOutput(),
            tool.readAllStandardError()};
}

inline QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

}  // namespace ornavo::testing

#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace ravelo {

/// Writes a file, with the folders above it, and returns its path.
inline QString makeFile(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()) && file.open(QFile::WriteOnly) &&
                file.write(bytes) == bytes.size())
        << "cannot write " << qPrintable(path);
    return path;
}

/// A file that can be run.
inline QString makeProgram(const QString& path, const QByteArray& script) {
    makeFile(path, "#!/bin/sh\n" + script);
    EXPECT_EQ(chmod(QFile::encodeName(path), 0700), 0) << qPrintable(path);
    return path;
}

/// As if it had been written years ago.
inline void makeOld(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadWrite) &&
                file.setFileTime(QDateTime(QDate(2001, 2, 3), {}), QFile::FileModificationTime));
}

/// The rights to a file or folder.
inline unsigned modeOf(const QString& path) {
    struct stat info = {};
    EXPECT_EQ(stat(QFile::encodeName(path), &info), 0) << qPrintable(path);
    return info.st_mode & 07777;
}

} // namespace ravelo

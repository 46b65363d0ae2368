#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace veldmark {

// Files and programs below a temporary folder.
class ProgramTree {
public:
    QString path(const QString &name) const
    {
        return QFileInfo(name).isAbsolute() ? name : m_folder.filePath(name);
    }
    QString root() const { return m_folder.path(); }

    QString file(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile target(path(name));
        if (!target.open(QIODevice::WriteOnly) || target.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path(name)));
        return path(name);
    }

    QString program(const QString &name, const QByteArray &content = "#!/bin/sh\nexit 1\n") const
    {
        file(name, content);
        QFile::setPermissions(path(name),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                  | QFile::ReadGroup | QFile::ExeGroup);
        return path(name);
    }

    QByteArray content(const QString &name) const
    {
        QFile source(path(name));
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace veldmark

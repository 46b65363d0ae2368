#pragma once

#include "ProgramTree.h"

#include <QProcess>
#include <QStringList>

namespace veldmark {

// Runs a program to its end; returns its standard output. A failure ends the test program.
inline QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60'000) || process.exitCode() != 0)
        qFatal("%s %s: %s", qPrintable(program), qPrintable(arguments.join(u' ')),
               process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

// A GnuPG key pair in a home of its own.
class SigningKey {
public:
    explicit SigningKey(const QString &name)
    {
        gpg({QStringLiteral("--quick-gen-key"), name + QStringLiteral(" <key@example.org>"),
             QStringLiteral("ed25519"), QStringLiteral("sign"), QStringLiteral("never")});
        for (const QByteArray &line :
             gpg({QStringLiteral("--with-colons"), QStringLiteral("--fingerprint")}).split('\n')) {
            if (line.startsWith("fpr:") && m_fingerprint.isEmpty())
                m_fingerprint = QString::fromLatin1(line.split(':').at(9));
        }
    }
    ~SigningKey()
    {
        output(QStringLiteral("/usr/bin/gpgconf"),
               {QStringLiteral("--homedir"), m_home.path(), QStringLiteral("--kill"),
                QStringLiteral("all")});
    }

    QString fingerprint() const { return m_fingerprint; }
    QByteArray publicKey() const
    {
        return gpg({QStringLiteral("--armor"), QStringLiteral("--export")});
    }
    // `how`: --detach-sign, --sign or --clearsign.
    QByteArray sign(const QByteArray &content,
                    const QString &how = QStringLiteral("--detach-sign")) const
    {
        const QString file = m_files.file(QStringLiteral("content"), content);
        return gpg({QStringLiteral("--armor"), how, QStringLiteral("--output"), QStringLiteral("-"),
                    file});
    }
    // Revokes the key: publicKey() contains the revocation afterwards.
    void revoke() const
    {
        const QString certificate
            = QStringLiteral("%1/openpgp-revocs.d/%2.rev").arg(m_home.path(), m_fingerprint);
        QByteArray text = m_files.content(certificate);
        text.replace(":-----BEGIN", "-----BEGIN");
        gpg({QStringLiteral("--import"), m_files.file(QStringLiteral("revocation"), text)});
    }

private:
    QByteArray gpg(const QStringList &arguments) const
    {
        return output(QStringLiteral("/usr/bin/gpg"),
                      QStringList{QStringLiteral("--homedir"), m_home.path(),
                                  QStringLiteral("--batch"), QStringLiteral("--quiet"),
                                  QStringLiteral("--passphrase"), QString(),
                                  QStringLiteral("--pinentry-mode"), QStringLiteral("loopback")}
                          + arguments);
    }

    QTemporaryDir m_home{QStringLiteral("/tmp/key-XXXXXX")}; // short: the agent's socket goes there
    ProgramTree m_files;
    QString m_fingerprint;
};

// The archive of a bundle whose lyrebird prints `mark`. `padding`: bytes that do not compress.
// version: the version that the archive names itself; empty: none, like the real one.
inline QByteArray bundleArchive(const QByteArray &mark, qsizetype padding = 0,
                                const QByteArray &version = {})
{
    const ProgramTree tree;
    if (!version.isEmpty())
        tree.file(QStringLiteral("b/VERSION"), version);
    tree.program(QStringLiteral("b/tor/pluggable_transports/lyrebird"),
                 "#!/bin/sh\necho " + mark + '\n');
    tree.file(QStringLiteral("b/tor/pluggable_transports/pt_config.json"),
              "{\"bridges\": {\"obfs4\": [\"obfs4 192.0.2.3:80 cert=A iat-mode=0\"]}}");
    QByteArray noise(padding, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : noise) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24);
    }
    tree.file(QStringLiteral("b/data/geoip"), noise);
    output(QStringLiteral("/usr/bin/tar"),
           {QStringLiteral("-czf"), tree.path(QStringLiteral("a.tar.gz")), QStringLiteral("-C"),
            tree.path(QStringLiteral("b")), QStringLiteral(".")});
    return tree.content(QStringLiteral("a.tar.gz"));
}

} // namespace veldmark

#pragma once

#include "doctor/Checks.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace veldmark {

// A Linux computer in a temporary folder on which a connect works. A test removes or adds what it
// tests.
class TestMachine {
public:
    static constexpr uid_t alice = 4242;

    TestMachine()
    {
        machine.profile = profile();
        machine.user = alice;
        machine.hasDesktop = true;
        machine.now = QDateTime::currentDateTimeUtc();
        machine.clockIsSet = true;
        machine.torVersion = QStringLiteral(
            "Tor version 0.4.7.16.\nThis build of Tor is covered by …");
        machine.owner = [](const QString &) { return FileOwner{0, 0755}; };

        write("/etc/os-release", "ID=debian\n");
        machine.profile = profile();
        for (const char *name : {"tor", "nft", "pkexec", "sudo", "bash", "flock", "setpriv",
                                 "unshare", "setsid", "mount", "umount", "getent", "stat", "sync",
                                 "timeout", "readlink", "sha256sum", "useradd"})
            program(QByteArray("/usr/bin/") + name);
        program("/usr/share/veldmark/veldmark-helper.sh");
        approve("#!/bin/sh\n", "tor"); // a folder below /tmp is not the system's
        write(
            "/etc/passwd",
            "root:x:0:0::/root:/bin/bash\ndebian-tor:x:108:116::/var/lib/tor:/bin/false\n"
            "alice:x:4242:4242::/home/user:/bin/bash\nbob:x:4343:4343::/home/bob:/bin/bash\n_veldmark:x:990:990::/:/bin/false\n");
        write("/etc/group", "root:x:0:\nsudo:x:27:bob,alice\n");
        write("/sys/module/nf_tables/refcnt", "1\n");
        write("/proc/sys/kernel/osrelease", "6.1.0-18-amd64\n");
        write("/proc/self/mountinfo",
              "30 23 0:26 / /sys/fs/cgroup rw,nosuid - cgroup2 cgroup2 rw\n");
        write("/etc/resolv.conf", "nameserver 192.0.2.53\n");
        listens("/proc/net/tcp", {});
        listens("/proc/net/udp", {});
        process(300, "polkitd", 0, "polkit.service");
        process(900, "gnome-shell", alice, "user@4242.service");
    }

    void write(const QByteArray &path, const QByteArray &content) const
    {
        const QString file = at(path);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size())
            qFatal("cannot write %s", path.constData());
    }
    void program(const QByteArray &path, const QByteArray &content = "#!/bin/sh\n") const
    {
        write(path, content);
        QFile::setPermissions(at(path),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                  | QFile::ReadOther | QFile::ExeOther);
    }
    // An administrator has approved the program with that content.
    void approve(const QByteArray &content, const QByteArray &role) const
    {
        const QByteArray digest
            = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
        program("/var/lib/veldmark/programs/" + digest + '/' + role, content);
    }
    void remove(const QByteArray &path) const
    {
        if (QFileInfo(at(path)).isDir())
            QDir(at(path)).removeRecursively();
        else if (!QFile::remove(at(path)))
            qFatal("there is no %s", path.constData());
    }
    void process(qint64 pid, const QByteArray &name, uid_t user, const QByteArray &unit = {}) const
    {
        const QByteArray folder = "/proc/" + QByteArray::number(pid);
        const QByteArray id = QByteArray::number(user);
        write(folder + "/status",
              "Name:\t" + name + "\nUmask:\t0022\nUid:\t" + id + "\t" + id + "\t" + id + "\t" + id
                  + "\n");
        write(folder + "/cgroup",
              unit.isEmpty() ? "0::/user.slice/user-4242.slice/session-2.scope\n"
                             : "0::/system.slice/" + unit + "\n");
    }

    struct Listener {
        QByteArray address; // as the kernel writes it
        int port;
        uid_t user;
        int socket;
        QByteArray state = "0A";
    };
    void listens(const QByteArray &table, const std::vector<Listener> &listeners) const
    {
        QByteArray text
            = "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout inode\n";
        for (const Listener &one : listeners)
            text += "   0: " + one.address + ':'
                + QByteArray::number(one.port, 16).toUpper().rightJustified(4, '0')
                + " 00000000:0000 " + one.state + " 00000000:00000000 00:00000000 00000000 "
                + QByteArray::number(one.user).rightJustified(5) + "        0 "
                + QByteArray::number(one.socket) + " 1 0000000000000000 100 0 0 10 0\n";
        write(table, text);
    }
    void hasSocket(qint64 pid, int socket) const
    {
        const QString folder = at("/proc/" + QByteArray::number(pid) + "/fd");
        QDir().mkpath(folder);
        QFile::link(QStringLiteral("socket:[%1]").arg(socket), folder + QStringLiteral("/7"));
    }

    QString at(const QByteArray &path) const { return m_folder.path() + QString::fromUtf8(path); }
    PlatformProfile profile() const
    {
        return PlatformProfile::linux(Places::below(m_folder.path()));
    }

private:
    QTemporaryDir m_folder;

public:
    Machine machine;
};

} // namespace veldmark

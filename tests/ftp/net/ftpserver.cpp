// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/ftpserver.h"

#include "ftp/net/hostlookup.h"
#include "ftp/net/socket.h"
#include "support/sourcefolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <csignal>

#include <pwd.h>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

using namespace std::chrono_literals;

constexpr int patience = 20'000;

/// Every process has a loopback address of its own, so that tests that run at the same time don't interfere.
QString addressOfThisProcess()
{
    const auto number = static_cast<quint32>(getpid());
    return u"127.%1.%2.%3"_s.arg(64 + ((number >> 14) & 127)).arg((number >> 7) & 127).arg(1 + (number & 127));
}

quint16 nextPort()
{
    static quint16 port = 2100;
    return ++port;
}

bool isRoot()
{
    return geteuid() == 0;
}

/// vsftpd serves anonymous users as the user ftp, who must own the folder.
void giveToServer(const QByteArray &path)
{
    const passwd *user = isRoot() ? getpwnam("ftp") : nullptr;
    if (user)
        QCOMPARE(lchown(path.constData(), user->pw_uid, user->pw_gid), 0);
}

} // namespace

FtpServer::FtpServer(Kind kind) : m_kind(kind), m_host(addressOfThisProcess()), m_port(nextPort())
{
    QVERIFY(m_root.isValid() && QDir().mkpath(localFolder()) && QDir().mkpath(m_root.filePath(u"empty"_s)));
    const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(m_root.path(), everybody));
    giveToServer(QFile::encodeName(localFolder()));
    QFile settings(m_root.filePath(u"vsftpd.conf"_s));
    QVERIFY(settings.open(QIODevice::WriteOnly) && settings.write(vsftpdSettings()) > 0);
    settings.close();

    QStringList arguments = command();
    const QString program = arguments.takeFirst();
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(program, arguments);
    QVERIFY2(m_process.waitForStarted(patience), qPrintable(m_process.errorString()));
    QElapsedTimer timer;
    timer.start();
    while (!answers() && m_process.state() == QProcess::Running && timer.elapsed() < patience)
        m_process.waitForFinished(10);
    QVERIFY2(isRunning(), m_process.readAll().constData());
}

void FtpServer::kill()
{
    m_process.kill();
    m_process.waitForFinished(patience);
}

void FtpServer::hold() const
{
    QCOMPARE(::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP), 0);
}

void FtpServer::goOn() const
{
    QCOMPARE(::kill(static_cast<pid_t>(m_process.processId()), SIGCONT), 0);
}

QString FtpServer::user() const
{
    return m_kind == Kind::Vsftpd ? u"anonymous"_s : u"zuser"_s;
}

QString FtpServer::password() const
{
    return m_kind == Kind::Vsftpd ? u"anonymous@example.com"_s : u"Secret word 9"_s;
}

QString FtpServer::loginFolder() const
{
    // A vsftpd that wasn't started by root can't confine its users to a folder.
    return m_kind == Kind::Vsftpd && !isRoot() ? m_root.filePath(u"served"_s) : u"/"_s;
}

QString FtpServer::folder() const
{
    const QString login = loginFolder();
    return login.endsWith(u'/') ? login + u"pub/"_s : login + u"/pub/"_s;
}

void FtpServer::addFile(const QByteArray &name, const QByteArray &content) const
{
    const QByteArray path = QFile::encodeName(localFolder()) + name;
    std::FILE *file = std::fopen(path.constData(), "wb");
    QVERIFY(file);
    QCOMPARE(std::fwrite(content.constData(), 1, static_cast<std::size_t>(content.size()), file),
             static_cast<std::size_t>(content.size()));
    std::fclose(file);
    giveToServer(path);
}

QStringList FtpServer::command() const
{
    if (m_kind == Kind::Vsftpd)
        return {u"/usr/sbin/vsftpd"_s, m_root.filePath(u"vsftpd.conf"_s)};
    return {u"/usr/bin/python3"_s,
            sourcePath(u"tests/ftp/net/ftpserver.py"_s),
            m_host,
            QString::number(m_port),
            user(),
            password(),
            m_root.filePath(u"served"_s)};
}

QByteArray FtpServer::vsftpdSettings() const
{
    const QByteArray root = QFile::encodeName(m_root.path());
    return "listen=YES\nlisten_ipv6=NO\nbackground=NO\nseccomp_sandbox=NO\nlocal_enable=NO\n"
           "anonymous_enable=YES\nno_anon_password=NO\nanon_world_readable_only=NO\nanon_umask=022\n"
           "write_enable=YES\nanon_upload_enable=YES\nanon_mkdir_write_enable=YES\nanon_other_write_enable=YES\n"
           "connect_from_port_20=NO\nxferlog_enable=NO\nutf8_filesystem=YES\n"
           "listen_address="
        + m_host.toLatin1() + "\nlisten_port=" + QByteArray::number(m_port) + "\nanon_root=" + root
        + "/served\nsecure_chroot_dir=" + root + "/empty\n" + (isRoot() ? "" : "run_as_launching_user=YES\n");
}

bool FtpServer::answers() const
{
    const std::vector<SocketAddress> addresses = lookUpHost(m_host, m_port, Deadline(1s));
    return !addresses.empty() && Socket::connectedTo(addresses.front(), Deadline(1s)).isOpen();
}

} // namespace zephira

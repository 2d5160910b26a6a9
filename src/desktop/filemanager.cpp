// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/filemanager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QStringList>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int answerTimeout = 5000; // milliseconds

/// If no bus is running, connecting would start one and leave it behind.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
}

} // namespace

bool showInFileManager(FileManagerView view, const QString &path)
{
    if (!hasSessionBus())
        return false;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    const QString operation = view == FileManagerView::ItemProperties ? u"ShowItemProperties"_s : u"ShowFolders"_s;
    QDBusMessage request =
        QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                       u"org.freedesktop.FileManager1"_s, operation);
    request << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    return bus.call(request, QDBus::Block, answerTimeout).type() == QDBusMessage::ReplyMessage;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/filepropertieswindow.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QMimeDatabase>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Read, write and execute permissions of owner, group and others, as "rwxr-x---".
QString permissionText(QFile::Permissions permissions)
{
    struct Letter {
        QFile::Permission permission;
        QChar letter;
    };
    constexpr Letter letters[] = {
        {QFile::ReadOwner, u'r'}, {QFile::WriteOwner, u'w'}, {QFile::ExeOwner, u'x'},
        {QFile::ReadGroup, u'r'}, {QFile::WriteGroup, u'w'}, {QFile::ExeGroup, u'x'},
        {QFile::ReadOther, u'r'}, {QFile::WriteOther, u'w'}, {QFile::ExeOther, u'x'},
    };
    QString text;
    for (const Letter &row : letters)
        text += permissions & row.permission ? row.letter : QChar(u'-');
    return text;
}

} // namespace

FilePropertiesWindow::FilePropertiesWindow(const QString &path, QWidget *owner) : QDialog(owner)
{
    setObjectName(u"fileProperties"_s);
    const QFileInfo file(path);
    setWindowTitle(u"Properties of %1"_s.arg(file.fileName()));

    auto *rows = new QFormLayout;
    const auto addRow = [&](const QString &caption, const QString &text) {
        auto *value = new QLabel(text, this);
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        value->setAccessibleName(caption);
        rows->addRow(caption, value);
    };
    const QLocale locale = QLocale::system();
    addRow(u"Name:"_s, file.fileName());
    addRow(u"Folder:"_s, file.path());
    addRow(u"Type:"_s, QMimeDatabase().mimeTypeForFile(file).comment());
    addRow(u"Size:"_s, u"%1 bytes"_s.arg(locale.toString(file.size())));
    addRow(u"Modified:"_s, locale.toString(file.lastModified(), QLocale::ShortFormat));
    addRow(u"Owner:"_s, file.owner());
    addRow(u"Permissions:"_s, permissionText(file.permissions()));
    if (file.isSymLink())
        addRow(u"Link to:"_s, file.symLinkTarget());

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addWidget(buttons);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/fileerror.h"

#include "core/translation.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct Reason {
    int error;
    QStringView text;
};

constexpr std::array reasons{
    Reason{ENOSPC, ZEPHIRA_TEXT("FileErrors", "the disk is full")},
    Reason{EDQUOT, ZEPHIRA_TEXT("FileErrors", "the disk quota is used up")},
    Reason{EFBIG, ZEPHIRA_TEXT("FileErrors", "it is larger than the system allows")},
    Reason{EROFS, ZEPHIRA_TEXT("FileErrors", "the disk is read-only")},
    Reason{EACCES, ZEPHIRA_TEXT("FileErrors", "permission was denied")},
    Reason{EPERM, ZEPHIRA_TEXT("FileErrors", "permission was denied")},
    Reason{EISDIR, ZEPHIRA_TEXT("FileErrors", "it is a folder")},
    Reason{ENOTDIR, ZEPHIRA_TEXT("FileErrors", "a part of its path is not a folder")},
    Reason{ENOENT, ZEPHIRA_TEXT("FileErrors", "it does not exist")},
    Reason{ENAMETOOLONG, ZEPHIRA_TEXT("FileErrors", "its name is too long")},
    Reason{ELOOP, ZEPHIRA_TEXT("FileErrors", "its symbolic links form a loop")},
    Reason{EIO, ZEPHIRA_TEXT("FileErrors", "the disk reported an error")},
    Reason{EMFILE, ZEPHIRA_TEXT("FileErrors", "too many files are open")},
    Reason{ENFILE, ZEPHIRA_TEXT("FileErrors", "too many files are open")},
    Reason{ENOMEM, ZEPHIRA_TEXT("FileErrors", "there is not enough memory")},
    Reason{ETXTBSY, ZEPHIRA_TEXT("FileErrors", "it is a program that is running")},
};

QString reasonOf(int error)
{
    const auto known = std::ranges::find_if(reasons, [=](const Reason &r) { return r.error == error; });
    return known == reasons.end() ? QString::fromLocal8Bit(std::strerror(error))
                                  : translated("FileErrors", known->text);
}

/// `sentence` has places for the path and the reason.
Error fileError(const QString &sentence, const QString &path, Error::Code code, const QString &reason)
{
    return {code, sentence.arg(path, reason)};
}

} // namespace

Error readError(const QString &path, int error)
{
    return readError(path, error == ENOENT ? Error::Code::NotFound : Error::Code::Unreadable, reasonOf(error));
}

Error saveError(const QString &path, int error)
{
    // When a new file is saved, only its folder can be missing.
    return saveError(path, Error::Code::Unwritable,
                     error == ENOENT ? QCoreApplication::translate("FileErrors", "its folder does not exist")
                                     : reasonOf(error));
}

Error removeError(const QString &path, int error)
{
    return fileError(QCoreApplication::translate("FileErrors", "The file \"%1\" could not be removed: %2."), path,
                     error == ENOENT ? Error::Code::NotFound : Error::Code::Unwritable, reasonOf(error));
}

Error readError(const QString &path, Error::Code code, const QString &reason)
{
    return fileError(QCoreApplication::translate("FileErrors", "The file \"%1\" could not be read: %2."), path, code,
                     reason);
}

Error saveError(const QString &path, Error::Code code, const QString &reason)
{
    return fileError(QCoreApplication::translate("FileErrors", "The file \"%1\" could not be saved: %2."), path, code,
                     reason);
}

} // namespace zephira

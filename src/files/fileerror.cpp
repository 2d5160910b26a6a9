// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/fileerror.h"

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
    Reason{ENOSPC, u"the disk is full"},
    Reason{EDQUOT, u"the disk quota is used up"},
    Reason{EFBIG, u"it is larger than the system allows"},
    Reason{EROFS, u"the disk is read-only"},
    Reason{EACCES, u"permission was denied"},
    Reason{EPERM, u"permission was denied"},
    Reason{EISDIR, u"it is a folder"},
    Reason{ENOTDIR, u"a part of its path is not a folder"},
    Reason{ENOENT, u"it does not exist"},
    Reason{ENAMETOOLONG, u"its name is too long"},
    Reason{ELOOP, u"its symbolic links form a loop"},
    Reason{EIO, u"the disk reported an error"},
    Reason{EMFILE, u"too many files are open"},
    Reason{ENFILE, u"too many files are open"},
    Reason{ENOMEM, u"there is not enough memory"},
    Reason{ETXTBSY, u"it is a program that is running"},
};

QString reasonOf(int error)
{
    const auto known = std::ranges::find_if(reasons, [=](const Reason &r) { return r.error == error; });
    return known == reasons.end() ? QString::fromLocal8Bit(std::strerror(error)) : known->text.toString();
}

Error fileError(const QString &path, QStringView verb, Error::Code code, const QString &reason)
{
    return {code, u"The file \""_s + path + u"\" could not be "_s + verb.toString() + u": "_s + reason + u'.'};
}

} // namespace

Error readError(const QString &path, int error)
{
    return readError(path, error == ENOENT ? Error::Code::NotFound : Error::Code::Unreadable, reasonOf(error));
}

Error saveError(const QString &path, int error)
{
    // When a new file is saved, only its folder can be missing.
    return saveError(path, Error::Code::Unwritable, error == ENOENT ? u"its folder does not exist"_s : reasonOf(error));
}

Error removeError(const QString &path, int error)
{
    return fileError(path, u"removed", error == ENOENT ? Error::Code::NotFound : Error::Code::Unwritable,
                     reasonOf(error));
}

Error readError(const QString &path, Error::Code code, const QString &reason)
{
    return fileError(path, u"read", code, reason);
}

Error saveError(const QString &path, Error::Code code, const QString &reason)
{
    return fileError(path, u"saved", code, reason);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpreply.h"

#include <QList>

#include <algorithm>

namespace zephira {

namespace {

/// Longer than any greeting or list of features; a server that never ends a reply is cut off here.
constexpr qsizetype longestReply = 1 << 18;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The three digits at the start of a line if a blank, "-" or nothing follows them; else 0.
int codeOf(QByteArrayView line)
{
    const bool hasCode = line.size() >= 3 && line[0] >= '1' && line[0] <= '5' && isDigit(line[1]) && isDigit(line[2])
        && (line.size() == 3 || line[3] == ' ' || line[3] == '-');
    return hasCode ? (line[0] - '0') * 100 + (line[1] - '0') * 10 + (line[2] - '0') : 0;
}

bool isContinued(QByteArrayView line)
{
    return line.size() > 3 && line[3] == '-';
}

std::optional<quint16> validPort(quint32 port)
{
    if (port == 0 || port > 0xffff)
        return {};
    return static_cast<quint16>(port);
}

} // namespace

bool FtpReplyReader::take(QByteArrayView line)
{
    const int code = codeOf(line);
    const bool first = m_reply.code == 0;
    if (m_complete || (first && code == 0) || m_reply.text.size() + line.size() >= longestReply)
        return false;
    if (first)
        m_reply.code = code;
    else
        m_reply.text += '\n';
    m_reply.text += line;
    m_complete = code == m_reply.code && !isContinued(line);
    return true;
}

std::optional<quint16> extendedPassivePort(const FtpReply &reply)
{
    const qsizetype open = reply.text.lastIndexOf('(');
    const qsizetype close = reply.text.indexOf(')', open);
    if (reply.code != 229 || open < 0 || close < open + 6)
        return {};
    const QByteArray parts = reply.text.sliced(open + 1, close - open - 1);
    // The server chooses the delimiter.
    const QByteArray divider(3, parts.front());
    if (isDigit(parts.front()) || !parts.startsWith(divider) || !parts.endsWith(parts.front()))
        return {};
    const QByteArray digits = parts.sliced(3, parts.size() - 4);
    if (!std::ranges::all_of(digits, isDigit))
        return {};
    return validPort(digits.toUInt());
}

std::optional<quint16> passivePort(const FtpReply &reply)
{
    if (reply.code != 227)
        return {};
    // Some servers omit the parentheses, so this looks for six numbers in a row after the code.
    const auto isPart = [](char c) { return isDigit(c) || c == ','; };
    const auto begin = std::find_if(reply.text.begin() + 3, reply.text.end(), isDigit);
    const QByteArray row(begin, std::find_if_not(begin, reply.text.end(), isPart) - begin);
    const QList<QByteArray> numbers = row.split(',');
    if (numbers.size() != 6)
        return {};
    quint32 port = 0;
    for (const QByteArray &number : numbers) {
        bool ok = false;
        const uint value = number.toUInt(&ok);
        if (!ok || value > 255)
            return {};
        port = ((port & 0xff) << 8) | value;
    }
    return validPort(port);
}

std::optional<QByteArray> quotedFolder(const FtpReply &reply)
{
    const qsizetype open = reply.text.indexOf('"');
    if (reply.code != 257 || open < 0)
        return {};
    QByteArray folder;
    for (qsizetype at = open + 1; at < reply.text.size(); ++at) {
        if (reply.text[at] != '"') {
            folder += reply.text[at];
        } else if (at + 1 < reply.text.size() && reply.text[at + 1] == '"') {
            folder += '"';
            ++at;
        } else {
            return folder;
        }
    }
    return {};
}

bool hasFeature(const FtpReply &reply, QByteArrayView feature)
{
    const QList<QByteArray> lines = reply.text.split('\n');
    return reply.isSuccess() && std::ranges::any_of(lines, [&](const QByteArray &line) {
               const QByteArray words = line.trimmed();
               const QByteArrayView word = QByteArrayView(words).first(std::min(words.size(), feature.size()));
               return word.compare(feature, Qt::CaseInsensitive) == 0
                   && (words.size() == word.size() || words[word.size()] == ' ');
           });
}

} // namespace zephira

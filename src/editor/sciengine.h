// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/longruns.h"
#include "editor/qsci.h"

#include <QByteArrayView>

#include <algorithm>
#include <utility>
#include <vector>

namespace zephira {

/// Sends messages to the editor engine, using signed positions. Positions and lengths are in bytes; lines are 0-based.
class SciEngine
{
public:
    explicit SciEngine(QsciScintillaBase &view) : m_view(&view) {}

    qsizetype send(unsigned int message, qsizetype wParam = 0, qsizetype lParam = 0) const
    {
        return m_view->SendScintilla(message, static_cast<unsigned long>(wParam), static_cast<long>(lParam));
    }
    /// For messages that take a string, with its length or another value as the first parameter.
    qsizetype sendText(unsigned int message, qsizetype wParam, const char *text) const
    {
        return m_view->SendScintilla(message, static_cast<unsigned long>(wParam), text);
    }

    qsizetype length() const { return send(QsciScintillaBase::SCI_GETLENGTH); }
    qsizetype lineCount() const { return send(QsciScintillaBase::SCI_GETLINECOUNT); }
    qsizetype lineOf(qsizetype position) const { return send(QsciScintillaBase::SCI_LINEFROMPOSITION, position); }
    /// The start of a line; the end of the text for a line after the last one.
    qsizetype lineStart(qsizetype line) const
    {
        return line < lineCount() ? send(QsciScintillaBase::SCI_POSITIONFROMLINE, line) : length();
    }
    /// The end of a line, before its line end characters.
    qsizetype lineEnd(qsizetype line) const { return send(QsciScintillaBase::SCI_GETLINEENDPOSITION, line); }
    qsizetype caret() const { return send(QsciScintillaBase::SCI_GETCURRENTPOS); }
    qsizetype anchor() const { return send(QsciScintillaBase::SCI_GETANCHOR); }
    int styleAt(qsizetype position) const
    {
        return withoutTwin(static_cast<int>(send(QsciScintillaBase::SCI_GETSTYLEAT, position)) & 0xff);
    }

    /// The bytes from start up to end, valid until the text changes. The engine moves its gap out of the range.
    QByteArrayView bytes(qsizetype start, qsizetype end) const
    {
        if (end <= start)
            return {};
        const auto address = send(QsciScintillaBase::SCI_GETRANGEPOINTER, start, end - start);
        return {reinterpret_cast<const char *>(address), end - start};
    }

    /// Replaces the bytes from start up to end with UTF-8, in one undo step.
    void replace(qsizetype start, qsizetype end, QByteArrayView utf8) const
    {
        const bool wasRectangle = isThinRectangle();
        if (wasRectangle)
            select(selections());
        send(QsciScintillaBase::SCI_BEGINUNDOACTION);
        send(QsciScintillaBase::SCI_SETTARGETRANGE, start, end);
        sendText(QsciScintillaBase::SCI_REPLACETARGET, utf8.size(), utf8.isEmpty() ? "" : utf8.data());
        send(QsciScintillaBase::SCI_ENDUNDOACTION);
        // Carets of several lines may be in one now, where each would type.
        if (wasRectangle)
            select(selections());
    }

    /// To be called after a key, which may have made the text shorter than the remembered corners of a rectangle: then only
    /// its carets remain.
    void leaveOutdatedRectangle() const
    {
        if (isThinRectangle() && std::max(caret(), anchor()) > length())
            select(selections());
    }

    QsciScintillaBase &view() const { return *m_view; }

private:
    /// A caret and the other end of what it selects.
    using Range = std::pair<qsizetype, qsizetype>;

    /// After something was typed into a rectangle, the engine has a caret in each of its lines and still remembers the
    /// corners. It doesn't move these with a change that isn't typed, so that they may soon lie behind the end of the text,
    /// where the engine reads them nevertheless. Carets that are selected one by one have no such memory.
    bool isThinRectangle() const
    {
        return send(QsciScintillaBase::SCI_GETSELECTIONMODE) == QsciScintillaBase::SC_SEL_THIN;
    }

    /// The main one comes last.
    std::vector<Range> selections() const
    {
        using Sci = QsciScintillaBase;
        std::vector<Range> ranges;
        const qsizetype count = send(Sci::SCI_GETSELECTIONS);
        const qsizetype main = send(Sci::SCI_GETMAINSELECTION);
        for (qsizetype i = 1; i <= count; ++i) {
            const qsizetype number = (main + i) % count;
            ranges.emplace_back(send(Sci::SCI_GETSELECTIONNCARET, number), send(Sci::SCI_GETSELECTIONNANCHOR, number));
        }
        return ranges;
    }

    /// Selects each range once.
    void select(const std::vector<Range> &ranges) const
    {
        using Sci = QsciScintillaBase;
        send(Sci::SCI_SETEMPTYSELECTION, ranges.back().first);
        bool isFirst = true;
        for (auto range = ranges.begin(); range != ranges.end(); ++range) {
            if (std::find(range + 1, ranges.end(), *range) != ranges.end())
                continue;
            send(isFirst ? Sci::SCI_SETSELECTION : Sci::SCI_ADDSELECTION, range->first, range->second);
            isFirst = false;
        }
    }

    QsciScintillaBase *m_view;
};

} // namespace zephira

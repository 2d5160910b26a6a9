// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidy/tidylibrary.h"

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How much of the stack reading may take: some ten thousand elements within one another. The later steps take a few
/// times as much.
constexpr std::uintptr_t stackForReading = std::uintptr_t{2} * 1024 * 1024;

/// How much memory a document may need, in bytes: far more than any document does whose elements are closed.
std::size_t memoryFor(qsizetype markup)
{
    constexpr std::size_t megabyte = std::size_t{1024} * 1024;
    constexpr std::size_t timesItsSize = 64;
    return std::min(64 * megabyte + timesItsSize * static_cast<std::size_t>(markup), 4096 * megabyte);
}

/// The parts of a run at which its steps end, from 0 to 1.
constexpr double readingEnd = 0.6;
constexpr double cleaningEnd = 0.75;

/// Why a run ended early.
enum class Stop { None, Cancelled, TooDeep, TooLarge, GivenUp };

/// The way out of Tidy's functions, which can't be ended otherwise: neither when nobody waits for the result any more,
/// nor when Tidy itself gives up and would end the whole program. It leads from a callback back to run(). In between
/// there are only C functions, and what they leave behind is in Memory.
class WayOut
{
public:
    /// Runs the steps; returns why they ended early.
    template<typename Steps>
    Stop run(Steps &steps)
    {
        if (setjmp(m_place) == 0)
            steps();
        return m_reason;
    }
    [[noreturn]] void take(Stop reason)
    {
        m_reason = reason;
        longjmp(m_place, 1);
    }

private:
    std::jmp_buf m_place{};
    Stop m_reason = Stop::None;
};

/// Gives out memory and frees what was never given back.
class Memory
{
public:
    Memory(WayOut &wayOut, const TidyWatch &watch, std::size_t limit)
        : m_wayOut(wayOut)
        , m_watch(watch)
        , m_limit(limit)
        , m_table{&allocate, &reallocate, &release, &panic}
        , m_head{{&m_table}, this}
    {}
    ~Memory()
    {
        while (m_first)
            freeBlock(m_first);
    }
    Q_DISABLE_COPY_MOVE(Memory)

    TidyAllocator *allocator() { return &m_head.base; }

private:
    /// What Tidy hands back to the functions.
    struct Head {
        TidyAllocator base;
        Memory *memory;
    };
    /// Precedes each piece of memory that Tidy gets.
    struct alignas(std::max_align_t) Block {
        Block *previous;
        Block *next;
        std::size_t size;
    };

    static Memory &of(TidyAllocator *allocator) { return *reinterpret_cast<Head *>(allocator)->memory; }
    static Block *blockOf(void *piece) { return static_cast<Block *>(piece) - 1; }

    static void *allocate(TidyAllocator *allocator, std::size_t size) { return of(allocator).resize(nullptr, size); }
    static void *reallocate(TidyAllocator *allocator, void *piece, std::size_t size)
    {
        return of(allocator).resize(piece ? blockOf(piece) : nullptr, size);
    }
    static void release(TidyAllocator *allocator, void *piece)
    {
        if (piece)
            of(allocator).freeBlock(blockOf(piece));
    }
    [[noreturn]] static void panic(TidyAllocator *allocator, ctmbstr) { of(allocator).m_wayOut.take(Stop::GivenUp); }

    void *resize(Block *old, std::size_t size)
    {
        if (m_watch.isCancelled())
            m_wayOut.take(Stop::Cancelled);
        const std::size_t before = old ? old->size : 0;
        if (m_used - before + size > m_limit)
            m_wayOut.take(Stop::TooLarge);
        auto *block = static_cast<Block *>(std::realloc(old, sizeof(Block) + size));
        if (!block)
            m_wayOut.take(Stop::TooLarge);
        if (!old) {
            block->previous = nullptr;
            block->next = m_first;
        }
        block->size = size;
        (block->previous ? block->previous->next : m_first) = block;
        if (block->next)
            block->next->previous = block;
        m_used += size - before;
        return block + 1;
    }

    void freeBlock(Block *block)
    {
        (block->previous ? block->previous->next : m_first) = block->next;
        if (block->next)
            block->next->previous = block->previous;
        m_used -= block->size;
        std::free(block);
    }

    WayOut &m_wayOut;
    const TidyWatch &m_watch;
    const std::size_t m_limit;
    const TidyAllocatorVtbl m_table;
    Head m_head;
    Block *m_first = nullptr;
    std::size_t m_used = 0;
};

/// The markup for Tidy.
class Source
{
public:
    Source(const QByteArray &markup, WayOut &wayOut, TidyWatch &watch, const void *frame)
        : m_markup(markup), m_wayOut(wayOut), m_watch(watch), m_frame(reinterpret_cast<std::uintptr_t>(frame))
    {
        tidyInitSource(&m_source, this, &getByte, &ungetByte, &isAtEnd);
    }
    Q_DISABLE_COPY_MOVE(Source)

    TidyInputSource *source() { return &m_source; }

private:
    static Source &of(void *data) { return *static_cast<Source *>(data); }

    static int getByte(void *data)
    {
        Source &self = of(data);
        self.look(reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)));
        if (self.m_at >= self.m_markup.size())
            return static_cast<int>(EndOfStream);
        return static_cast<unsigned char>(self.m_markup[self.m_at++]);
    }
    static void ungetByte(void *data, byte) { --of(data).m_at; }
    static Bool isAtEnd(void *data) { return of(data).m_at >= of(data).m_markup.size() ? yes : no; }

    void look(std::uintptr_t frame)
    {
        constexpr qsizetype step = 4096;
        if (m_frame - frame > stackForReading)
            m_wayOut.take(Stop::TooDeep);
        if (m_at % step != 0)
            return;
        if (m_watch.isCancelled())
            m_wayOut.take(Stop::Cancelled);
        m_watch.setProgress(readingEnd * static_cast<double>(m_at) / static_cast<double>(m_markup.size() + 1));
    }

    const QByteArray &m_markup;
    WayOut &m_wayOut;
    TidyWatch &m_watch;
    const std::uintptr_t m_frame;
    TidyInputSource m_source{};
    qsizetype m_at = 0;
};

/// Takes what Tidy writes.
class Sink
{
public:
    Sink(qsizetype expected, WayOut &wayOut, TidyWatch &watch)
        : m_expected(static_cast<double>(expected + 1)), m_wayOut(wayOut), m_watch(watch)
    {
        tidyInitSink(&m_sink, this, &putByte);
    }
    Q_DISABLE_COPY_MOVE(Sink)

    TidyOutputSink *sink() { return &m_sink; }
    QByteArray taken() { return std::move(m_output); }

private:
    static void putByte(void *data, byte sign)
    {
        Sink &self = *static_cast<Sink *>(data);
        constexpr qsizetype step = 4096;
        if (self.m_output.size() % step == 0)
            self.look();
        self.m_output.append(static_cast<char>(sign));
    }

    void look()
    {
        if (m_watch.isCancelled())
            m_wayOut.take(Stop::Cancelled);
        const double done = std::min(static_cast<double>(m_output.size()) / m_expected, 1.0);
        m_watch.setProgress(cleaningEnd + (1 - cleaningEnd) * done);
    }

    const double m_expected;
    WayOut &m_wayOut;
    TidyWatch &m_watch;
    TidyOutputSink m_sink{};
    QByteArray m_output;
};

struct Messages {
    std::vector<TidyMessage> all;
    bool haveKeys = false;
};

/// Keeps a message of Tidy, if it is a warning or an error.
Bool keepMessage(::TidyMessage said)
{
    auto *messages = static_cast<Messages *>(tidyGetAppData(tidyGetMessageDoc(said)));
    const TidyReportLevel level = tidyGetMessageLevel(said);
    const bool isWarning = level == TidyWarning;
    const bool isError = level == TidyError || level == TidyBadDocument || level == TidyFatal;
    if ((isWarning || isError) && messages->all.size() < TidyEngine::mostMessages) {
        messages->all.push_back({
            .kind = isError ? TidyMessage::Kind::Error : TidyMessage::Kind::Warning,
            .line = std::max(tidyGetMessageLine(said), 0) - 1,
            .column = std::max(tidyGetMessageColumn(said), 1) - 1,
            .text = QString::fromUtf8(tidyGetMessageOutput(said)).trimmed(),
            .key = messages->haveKeys ? QByteArray(tidyGetMessageKey(said)) : QByteArray(),
        });
    }
    // Nothing is written to the standard error output.
    return no;
}

/// Whether the parsed document has font or center elements. It may be deep, so the search doesn't call itself.
bool hasFontTags(TidyDoc document)
{
    TidyNode node = tidyGetRoot(document);
    while (node) {
        const TidyTagId id = tidyNodeGetId(node);
        if (id == TidyTag_FONT || id == TidyTag_CENTER)
            return true;
        TidyNode next = tidyGetChild(node);
        while (!next && node) {
            next = tidyGetNext(node);
            node = tidyGetParent(node);
        }
        node = next;
    }
    return false;
}

Error errorFor(Stop stop)
{
    switch (stop) {
    case Stop::TooDeep:
        return {Error::Code::TooLarge,
                u"The document can't be checked: too many of its elements lie within one another."_s};
    case Stop::TooLarge:
        return {Error::Code::TooLarge, u"The document can't be checked: it needs too much memory."_s};
    case Stop::GivenUp:
        return {Error::Code::Malformed, u"The document can't be checked: Tidy can't repair its structure."_s};
    default:
        return {Error::Code::Refused, u"The check was canceled."_s};
    }
}

/// All that a run needs. Tidy's functions may be left at any time, so nothing of it is on their side of the way out.
struct Session {
    Session(const QByteArray &markup, const std::vector<TidySetting> &wanted, TidyEngine::Steps wantedSteps,
            TidyWatch &wantedWatch, const void *frame)
        : settings(wanted)
        , steps(wantedSteps)
        , watch(wantedWatch)
        , memory(wayOut, wantedWatch, memoryFor(markup.size()))
        , source(markup, wayOut, wantedWatch, frame)
        , sink(markup.size(), wayOut, wantedWatch)
    {}

    void operator()()
    {
        const TidyDoc document = tidyCreateWithAllocator(memory.allocator());
        messages.haveKeys = steps == TidyEngine::Steps::Checking;
        tidySetAppData(document, &messages);
        tidySetMessageCallback(document, keepMessage);
        // A value that Tidy refuses leaves the option as it is.
        for (const TidySetting &setting : settings)
            tidyOptParseValue(document, setting.name.constData(), setting.value.constData());
        tidyParseSource(document, source.source());
        if (steps == TidyEngine::Steps::Checking)
            return;
        foundFontTags = hasFontTags(document);
        watch.setProgress(readingEnd);
        if (steps == TidyEngine::Steps::All) {
            tidyCleanAndRepair(document);
            tidyRunDiagnostics(document);
        }
        watch.setProgress(cleaningEnd);
        tidySaveSink(document, sink.sink());
        // The document isn't released: its memory is freed as a whole, whether or not this line is reached.
    }

    const std::vector<TidySetting> &settings;
    const TidyEngine::Steps steps;
    TidyWatch &watch;
    WayOut wayOut;
    Memory memory;
    Source source;
    Sink sink;
    Messages messages;
    bool foundFontTags = false;
};

} // namespace

Result<TidyEngine::Run> TidyLibrary::run(const QByteArray &markup, const std::vector<TidySetting> &settings,
                                         Steps steps, TidyWatch &watch) const
{
    Session session(markup, settings, steps, watch, __builtin_frame_address(0));
    if (const Stop stop = session.wayOut.run(session); stop != Stop::None)
        return errorFor(stop);
    return Run{session.sink.taken(), std::move(session.messages.all), session.foundFontTags};
}

} // namespace zephira

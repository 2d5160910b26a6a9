// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scriptedprompts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The text in quotes, with line ends and other control characters made visible.
QString quoted(const QString &text)
{
    QString result = u"\""_s;
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\')
            result += u'\\' + QString(c);
        else if (c == u'\r')
            result += u"\\r"_s;
        else if (c == u'\n')
            result += u"\\n"_s;
        else if (c.unicode() < 32 || c.unicode() == 127)
            result += u"\\x"_s + QString::number(c.unicode(), 16).rightJustified(2, u'0');
        else
            result += c;
    }
    return result + u'"';
}

QString nameOf(Question::Icon icon)
{
    switch (icon) {
    case Question::Icon::None:
        return u"none"_s;
    case Question::Icon::Information:
        return u"information"_s;
    case Question::Icon::Question:
        return u"question"_s;
    case Question::Icon::Exclamation:
        return u"exclamation"_s;
    case Question::Icon::Critical:
        return u"critical"_s;
    }
    Q_UNREACHABLE();
}

QString nameOf(Question::Buttons buttons)
{
    switch (buttons) {
    case Question::Buttons::Ok:
        return u"OK"_s;
    case Question::Buttons::OkCancel:
        return u"OK, Cancel"_s;
    case Question::Buttons::YesNo:
        return u"Yes, No"_s;
    case Question::Buttons::YesNoCancel:
        return u"Yes, No, Cancel"_s;
    }
    Q_UNREACHABLE();
}

QString described(const QString &kind, std::initializer_list<std::pair<const char *, QString>> fields)
{
    QString result = kind;
    for (const auto &[name, value] : fields)
        result += u"\n    "_s + QString::fromLatin1(name).leftJustified(9) + value;
    return result;
}

QString described(const Question &question)
{
    return described(u"message box"_s,
                     {{"title", quoted(question.title)},
                      {"text", quoted(question.text)},
                      {"icon", nameOf(question.icon)},
                      {"buttons", nameOf(question.buttons)}});
}

QString described(const InputRequest &request)
{
    return described(
        u"input box"_s,
        {{"title", quoted(request.title)}, {"text", quoted(request.text)}, {"initial", quoted(request.initial)}});
}

QString described(const FileRequest &request)
{
    return described(request.saving ? u"save dialog"_s : u"open dialog"_s,
                     {{"title", quoted(request.title)},
                      {"filter", quoted(request.filter)},
                      {"folder", quoted(request.initialFolder)},
                      {"file", quoted(request.fileName)}});
}

QString describedFolder(const QString &title, const QString &initialFolder)
{
    return described(u"folder dialog"_s, {{"title", quoted(title)}, {"folder", quoted(initialFolder)}});
}

QString describedColour(quint32 initial)
{
    return described(u"colour dialog"_s, {{"initial", QString::number(initial, 16).rightJustified(6, u'0')}});
}

QString described(const FontChoice &font)
{
    const auto word = [](bool on) { return on ? u"yes"_s : u"no"_s; };
    return described(u"font dialog"_s,
                     {{"name", quoted(font.name)},
                      {"size", QString::number(font.size)},
                      {"bold", word(font.bold)},
                      {"italic", word(font.italic)},
                      {"strike", word(font.strikethrough)},
                      {"under", word(font.underline)}});
}

} // namespace

ScriptedPrompts::~ScriptedPrompts()
{
    verify();
}

void ScriptedPrompts::expect(const Question &question, Answer answer, During during)
{
    m_script.push_back({described(question), answer, std::move(during)});
}

void ScriptedPrompts::expectTell(const QString &text, const QString &title, Question::Icon icon)
{
    expect({text, title, icon, Question::Buttons::Ok}, Answer::Ok);
}

void ScriptedPrompts::expectInput(const InputRequest &request, const std::optional<QString> &answer, During during)
{
    m_script.push_back({described(request), answer, std::move(during)});
}

void ScriptedPrompts::expectFile(const FileRequest &request, const std::optional<QString> &answer, During during)
{
    m_script.push_back({described(request), answer, std::move(during)});
}

void ScriptedPrompts::expectFolder(const QString &title, const QString &initialFolder,
                                   const std::optional<QString> &answer)
{
    m_script.push_back({describedFolder(title, initialFolder), answer, {}});
}

void ScriptedPrompts::expectColour(quint32 initial, std::optional<quint32> answer)
{
    m_script.push_back({describedColour(initial), answer, {}});
}

void ScriptedPrompts::expectFont(const FontChoice &initial, const std::optional<FontChoice> &answer)
{
    m_script.push_back({described(initial), answer, {}});
}

bool ScriptedPrompts::verify()
{
    if (m_script.empty())
        return true;
    QString message = u"these questions were expected and not asked:"_s;
    for (const Step &step : m_script)
        message += u"\n  "_s + step.request;
    m_script.clear();
    fail(message);
    return false;
}

Answer ScriptedPrompts::ask(const Question &question)
{
    return answerTo<Answer>(described(question), Answer::Cancel);
}

std::optional<QString> ScriptedPrompts::input(const InputRequest &request)
{
    return answerTo<std::optional<QString>>(described(request), std::nullopt);
}

std::optional<QString> ScriptedPrompts::file(const FileRequest &request)
{
    return answerTo<std::optional<QString>>(described(request), std::nullopt);
}

std::optional<QString> ScriptedPrompts::folder(const QString &title, const QString &initialFolder)
{
    return answerTo<std::optional<QString>>(describedFolder(title, initialFolder), std::nullopt);
}

std::optional<quint32> ScriptedPrompts::colour(quint32 initial)
{
    return answerTo<std::optional<quint32>>(describedColour(initial), std::nullopt);
}

std::optional<FontChoice> ScriptedPrompts::font(const FontChoice &initial)
{
    return answerTo<std::optional<FontChoice>>(described(initial), std::nullopt);
}

template<typename T>
T ScriptedPrompts::answerTo(const QString &request, T cancelled)
{
    if (m_script.empty()) {
        fail(u"no question was expected, but the user was asked:\n  "_s + request);
        return cancelled;
    }
    if (m_script.front().request != request) {
        fail(u"the question differs.\n  expected: "_s + m_script.front().request + u"\n  asked:    "_s + request);
        return cancelled;
    }
    const Step step = std::move(m_script.front());
    m_script.pop_front();
    if (step.during)
        step.during();
    return std::get<T>(step.reply);
}

void ScriptedPrompts::fail(const QString &message) const
{
    if (onFailure)
        onFailure(message);
    else if (QTest::currentTestFunction())
        QTest::qFail(qPrintable(message), "the prompts", 0);
    else
        qFatal("outside of a test: %s", qPrintable(message));
}

} // namespace zephira

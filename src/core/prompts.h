// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace zephira {

/// A question, or a note that has only OK, put to the user. An empty title stands for the program's name.
struct Question {
    enum class Icon { None, Information, Question, Exclamation, Critical };
    enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };

    QString text;
    QString title = {};
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;

    friend bool operator==(const Question &, const Question &) = default;
};

enum class Answer { Ok, Cancel, Yes, No };

/// Asks for one line of text.
struct InputRequest {
    QString text;
    QString title = {};
    QString initial = {};

    friend bool operator==(const InputRequest &, const InputRequest &) = default;
};

/// Asks for a file name. The filter is a list of name and pattern pairs divided by bars,
/// "Text Files|*.txt|All Files|*.*"; "*.*" matches every name.
struct FileRequest {
    QString title = {};
    QString filter = {};
    QString initialFolder = {};
    bool saving = false;
    /// Full path that the dialog starts at, or empty: its name stands in the box, and its folder shows where
    /// `initialFolder` is empty or isn't there.
    QString fileName = {};

    friend bool operator==(const FileRequest &, const FileRequest &) = default;
};

/// The six properties of a font that the program stores. Size in points.
struct FontChoice {
    QString name;
    double size = 10;
    bool bold = false;
    bool italic = false;
    bool strikethrough = false;
    bool underline = false;

    friend bool operator==(const FontChoice &, const FontChoice &) = default;
};

/// The one door to dialogs that ask the user. The program answers with the desktop's dialogs, tests with scripted ones.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual Answer ask(const Question &question) = 0;
    /// Nothing when the user cancelled; an empty string when OK was pressed on an empty box.
    virtual std::optional<QString> input(const InputRequest &request) = 0;
    /// The full path with the platform's separators, or nothing when the user cancelled. A save request never asks about
    /// overwriting: the caller does.
    virtual std::optional<QString> file(const FileRequest &request) = 0;
    virtual std::optional<QString> folder(const QString &title, const QString &initialFolder) = 0;
    /// Colours are numbers with red in the lowest byte.
    virtual std::optional<quint32> colour(quint32 initial) = 0;
    virtual std::optional<FontChoice> font(const FontChoice &initial) = 0;

    /// A note with an OK button.
    void tell(const QString &text, const QString &title = {}, Question::Icon icon = Question::Icon::Information)
    {
        ask({text, title, icon, Question::Buttons::Ok});
    }
};

} // namespace zephira

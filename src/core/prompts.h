// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace zephira {

/// A message box: a question, or a note with only an OK button. An empty title stands for the program's name.
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

/// Asks for a file name. The filter is a list of name and pattern pairs separated by bars,
/// "Text Files|*.txt|All Files|*.*"; "*.*" matches every name.
struct FileRequest {
    QString title = {};
    QString filter = {};
    QString initialFolder = {};
    bool saving = false;
    /// Full path to start with, or empty. Its name is filled in, and its folder is shown if `initialFolder` is empty or
    /// doesn't exist.
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

/// All dialogs that ask the user go through this interface. The program shows the desktop's dialogs; tests script the
/// answers.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual Answer ask(const Question &question) = 0;
    /// Nothing if the user cancelled; an empty string if OK was pressed with an empty input.
    virtual std::optional<QString> input(const InputRequest &request) = 0;
    /// The full path with the platform's separators, or nothing if the user cancelled. A save request never asks before
    /// overwriting; the caller has to.
    virtual std::optional<QString> file(const FileRequest &request) = 0;
    virtual std::optional<QString> folder(const QString &title, const QString &initialFolder) = 0;
    /// Colours have red in the lowest byte.
    virtual std::optional<quint32> colour(quint32 initial) = 0;
    virtual std::optional<FontChoice> font(const FontChoice &initial) = 0;

    /// Shows a note with an OK button.
    void tell(const QString &text, const QString &title = {}, Question::Icon icon = Question::Icon::Information)
    {
        ask({text, title, icon, Question::Buttons::Ok});
    }
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
// bare [FILE]: a window with nothing but a QScintilla editor and its own HTML lexer, the least that an editor built on
// QScintilla can cost.
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    auto *editor = new QsciScintilla(&window);
    window.setCentralWidget(editor);
    window.resize(1200, 800);
    if (argc > 1) {
        QFile file(QFile::decodeName(argv[1]));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        // The bytes go straight to the editor, because a detour through QString costs time and memory. The lexer is set
        // before the text, because then it colours only the visible part.
        editor->setLexer(new QsciLexerHTML(editor));
        const QByteArray content = file.readAll();
        editor->SendScintilla(QsciScintilla::SCI_APPENDTEXT, static_cast<unsigned long>(content.size()),
                              content.constData());
    }
    window.show();
    editor->setFocus();
    return QApplication::exec();
}

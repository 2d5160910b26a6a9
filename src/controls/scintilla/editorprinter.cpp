// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/scintilla/editorprinter.h"

#include "controls/scintilla/codemax.h"
#include "controls/scintilla/idlecolouring.h"

#include <Qsci/qsciprinter.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>

#include <memory>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

constexpr double headerPoints = 9;

/// A printer that heads each page.
class PagePrinter final : public QsciPrinter
{
public:
    explicit PagePrinter(QString title) : QsciPrinter(QPrinter::HighResolution), m_title(std::move(title))
    {
        setDocName(m_title);
        setWrapMode(QsciScintilla::WrapWord);
    }

    void formatPage(QPainter &painter, bool drawing, QRect &area, int page) override
    {
        QFont font(u"Sans Serif"_s);
        font.setPointSizeF(headerPoints);
        const QFontMetrics metrics(font, this);
        const QRect header(area.left(), area.top(), area.width(), metrics.height());
        area.setTop(header.bottom() + metrics.height());
        if (!drawing)
            return;
        const QString number = QCoreApplication::translate("EditorPrinter", "Page %1").arg(page);
        const int room = area.width() - metrics.horizontalAdvance(number) - metrics.height();
        painter.save();
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(header, Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(m_title, Qt::ElideMiddle, room));
        painter.drawText(header, Qt::AlignRight | Qt::AlignVCenter, number);
        painter.drawLine(area.left(), header.bottom() + metrics.height() / 4, area.right(),
                         header.bottom() + metrics.height() / 4);
        painter.restore();
    }

private:
    QString m_title;
};

} // namespace

EditorPrinter::EditorPrinter(CodeMax &editor) : m_editor(editor)
{
    m_setup = [&editor](QPrinter &printer, const std::function<void()> &go) {
        auto *dialog = new QPrintDialog(&printer, &editor);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        // The dialog works on the printer to its last moment.
        QObject::connect(dialog, &QDialog::finished, &editor, [go](int result) {
            if (result == QDialog::Accepted)
                go();
        });
        dialog->open();
    };
}

void EditorPrinter::print()
{
    const QString caption = m_editor.window()->windowTitle();
    const QString title = caption.isEmpty() ? QFileInfo(m_editor.path()).fileName() : caption;
    const auto printer = std::make_shared<PagePrinter>(title);
    const QPointer<CodeMax> editor(&m_editor);
    m_setup(*printer, [printer, editor] {
        if (!editor)
            return;
        editor->colouring().colourAll();
        editor->engine().send(QsciScintillaBase::SCI_SETPRINTCOLOURMODE, QsciScintillaBase::SC_PRINT_COLOURONWHITE);
        printer->printRange(editor);
    });
}

} // namespace zephira

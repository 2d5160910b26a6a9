// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorprinter.h"

#include "editor/bidipainter.h"
#include "editor/codemax.h"
#include "editor/editorappearance.h"
#include "editor/idlecolouring.h"
#include "editor/indicators.h"
#include "editor/linepages.h"
#include "editor/qsci.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <utility>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

using Sci = QsciScintillaBase;

constexpr double headerPoints = 9;
constexpr double marginMillimetres = 15;

/// Hides the indicators of matching brackets, of the selection's bounds and of problems during its lifetime.
class WithoutMarks
{
public:
    explicit WithoutMarks(const SciEngine &engine) : m_engine(engine)
    {
        for (std::size_t i = 0; i < marks.size(); ++i) {
            m_styles[i] = engine.send(Sci::SCI_INDICGETSTYLE, marks[i]);
            engine.send(Sci::SCI_INDICSETSTYLE, marks[i], Sci::INDIC_HIDDEN);
        }
    }
    ~WithoutMarks()
    {
        for (std::size_t i = 0; i < marks.size(); ++i)
            m_engine.send(Sci::SCI_INDICSETSTYLE, marks[i], m_styles[i]);
    }
    Q_DISABLE_COPY_MOVE(WithoutMarks)

private:
    static constexpr std::array marks{BraceIndicator, BoundsIndicator, ErrorIndicator, WarningIndicator};
    const SciEngine &m_engine;
    std::array<qsizetype, marks.size()> m_styles{};
};

/// A printer that adds a header to each page.
class PagePrinter final : public QsciPrinter
{
public:
    /// The document's name, without a folder, is also the file name suggested for printing to PDF.
    PagePrinter(QString title, const QString &documentName)
        : QsciPrinter(QPrinter::HighResolution), m_title(std::move(title))
    {
        // The print dialog suggests the part before the dot, and nothing if there is no dot.
        setDocName(documentName.contains(u'.') ? documentName : documentName + u".pdf"_s);
        setWrapMode(QsciScintilla::WrapWord);
        const QMarginsF margins(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres);
        setPageMargins(margins, QPageLayout::Millimeter);
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
        painter.setPen(QPen(Qt::gray, metrics.lineWidth() / 2.0));
        painter.drawLine(area.left(), header.bottom() + metrics.height() / 4, area.right(),
                         header.bottom() + metrics.height() / 4);
        painter.restore();
    }

private:
    QString m_title;
};

/// Shows the text in the colours of paper, as long as it lives.
class OnPaper
{
public:
    explicit OnPaper(EditorAppearance &appearance) : m_appearance(appearance) { appearance.setOnPaper(true); }
    ~OnPaper() { m_appearance.setOnPaper(false); }
    Q_DISABLE_COPY_MOVE(OnPaper)

private:
    EditorAppearance &m_appearance;
};

/// The numbers of the pages to print, in their order.
QList<int> wantedPages(const QPrinter &printer, int count)
{
    const int first = std::max(printer.fromPage(), 1);
    const int last = printer.toPage() > 0 ? std::min(printer.toPage(), count) : count;
    QList<int> pages(std::max(last - first + 1, 0));
    std::iota(pages.begin(), pages.end(), first);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::ranges::reverse(pages);
    return pages;
}

void printLines(CodeMax &editor, PagePrinter &printer)
{
    QPainter painter(&printer);
    if (!painter.isActive())
        return;
    const auto frame = [&printer](QPainter &on, bool drawing, QRect &area, int page) {
        printer.formatPage(on, drawing, area, page);
    };
    LinePages pages(editor.engine(), printer, painter, frame, editor.editorFont().strikethrough);
    const QList<int> wanted = wantedPages(printer, pages.count());
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    bool isFirst = true;
    for (int copy = 0; copy < copies; ++copy) {
        for (const int page : wanted) {
            if (!std::exchange(isFirst, false) && !printer.newPage())
                return;
            pages.paint(page);
        }
    }
}

} // namespace

EditorPrinter::EditorPrinter(CodeMax &editor) : m_editor(editor)
{
    m_setup = [&editor](QPrinter &printer, const std::function<void()> &go) {
        auto *dialog = new QPrintDialog(&printer, &editor);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        // The dialog uses the printer until it has finished.
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
    const QString fileName = m_editor.path().isEmpty() ? u"Untitled"_s : QFileInfo(m_editor.path()).fileName();
    const auto printer = std::make_shared<PagePrinter>(caption.isEmpty() ? fileName : caption, fileName);
    const QPointer<CodeMax> editor(&m_editor);
    m_setup(*printer, [printer, editor] {
        if (!editor)
            return;
        editor->colouring().colourAll();
        editor->engine().send(Sci::SCI_SETPRINTCOLOURMODE, Sci::SC_PRINT_COLOURONWHITE);
        const WithoutMarks withoutMarks(editor->engine());
        const OnPaper onPaper(editor->appearance());
        if (editor->bidi().isNeeded())
            printLines(*editor, *printer);
        else
            printer->printRange(editor);
    });
}

} // namespace zephira

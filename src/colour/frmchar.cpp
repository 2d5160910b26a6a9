// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/frmchar.h"

#include "colour/characters.h"
#include "core/clipboard.h"
#include "core/designer.h"
#include "core/pasteitem.h"
#include "ui_frmchar.h"

#include <QWindow>

namespace zephira {

namespace {

/// How far the shadow of the enlarged cell reaches, in pixels.
constexpr QPoint shadow{3, 3};

/// A window of its own, not a dialog: a dialog would stay above the program's other windows.
constexpr Qt::WindowFlags windowOfItsOwn = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint
    | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;

} // namespace

frmChar::frmChar(const AppContext &context, QWidget *owner)
    : QDialog(owner, windowOfItsOwn), m_ui(std::make_unique<Ui::frmChar>()), m_context(context)
{
    m_ui->setupUi(this);
    // The program ends with its main window, even while this one is open.
    setAttribute(Qt::WA_QuitOnClose, false);
    // The two lie over the grid and must not take its mouse events.
    for (QLabel *picture : {m_ui->Picture3, m_ui->Picture2})
        picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The same grey in any palette: in a dark one, the palette's own greys are nearly the background.
    m_ui->Picture3->setPalette(QColor(Qt::gray));
    m_ui->Picture3->setAutoFillBackground(true);
    m_ui->Picture2->setBackgroundRole(QPalette::Base);
    m_ui->Picture2->setForegroundRole(QPalette::Text);
    m_ui->Picture2->setAutoFillBackground(true);
    hideEnlarged();

    const CharacterGrid *grid = m_ui->Picture1;
    connect(grid, &CharacterGrid::currentChanged, this, &frmChar::describe);
    connect(grid, &CharacterGrid::pressed, this, &frmChar::makeCursorInvisible);
    connect(grid, &CharacterGrid::released, this, &frmChar::makeCursorVisible);
    connect(grid, &CharacterGrid::chosen, this, &frmChar::addCharacter);
    connect(grid, &CharacterGrid::lookedAt, this, &frmChar::enlarge);
    connect(grid, &CharacterGrid::lookedAway, this, &frmChar::hideEnlarged);
    connect(m_ui->cmdSelect, &QPushButton::clicked, this, &frmChar::addCharacter);
    connect(m_ui->cmdCopy, &QPushButton::clicked, this, &frmChar::copyText);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmChar::inserttext);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmChar::reject);
    m_ui->Picture1->click({});
    describe(m_ui->Picture1->code());
}

frmChar::~frmChar()
{
    // The grid still loses the focus, and reports it, after this part of the form is destroyed.
    m_ui->Picture1->disconnect(this);
}

void frmChar::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // The parent is there only so that it takes this window along when it is destroyed.
    if (QWindow *window = windowHandle())
        window->setTransientParent(nullptr);
}

void frmChar::makeCursorInvisible()
{
    m_ui->Picture1->setCursor(Qt::BlankCursor);
}

void frmChar::makeCursorVisible()
{
    m_ui->Picture1->unsetCursor();
}

void frmChar::inserttext()
{
    const QString text = m_ui->txtCopy->text();
    if (!m_context.designer.isShowing())
        pasteBehindSelection(m_context, text);
    else if (!text.isEmpty())
        m_context.designer.pasteHtml(text.toHtmlEscaped());
    accept();
}

void frmChar::addCharacter()
{
    m_ui->txtCopy->end(false);
    m_ui->txtCopy->insert(characterOfCode(m_ui->Picture1->code()));
    m_ui->Picture1->setFocus();
}

void frmChar::copyText()
{
    m_context.clipboard.setText(m_ui->txtCopy->text());
    m_ui->Picture1->setFocus();
}

void frmChar::enlarge(int code, QPoint point)
{
    const QString character = characterOfCode(code);
    if (character.isEmpty()) {
        hideEnlarged();
        return;
    }
    QLabel *cell = m_ui->Picture2;
    const int side = cell->fontMetrics().height() + cell->fontMetrics().height() / 2;
    cell->setText(character);
    cell->resize(side, side);
    cell->move(placeBeside(m_ui->Picture1->mapTo(this, point), cell->size(), rect()));
    m_ui->Picture3->setGeometry(cell->geometry().translated(shadow));
    for (QLabel *picture : {m_ui->Picture3, cell}) {
        picture->show();
        picture->raise();
    }
}

void frmChar::hideEnlarged()
{
    m_ui->Picture2->hide();
    m_ui->Picture3->hide();
}

void frmChar::describe(int code)
{
    const QString caption = characterCaption(code);
    m_ui->lblCharacter->setText(caption);
    m_ui->Picture1->setAccessibleDescription(caption);
}

} // namespace zephira

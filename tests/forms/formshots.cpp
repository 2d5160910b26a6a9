// SPDX-License-Identifier: GPL-3.0-or-later
// formshots DIR [SCALE]     saves a picture of each form, in a light and a dark palette: DIR/frmTable-light@1x.png …
//                           and of each page that has a tab: DIR/frmTagEdit-page1-light@1x.png …
// formshots --names FORM    prints the current list of names of a form, as a start for tests/forms/names/FORM.txt
#include "forms/allforms.h"
#include "support/fakes.h"
#include "support/formnames.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Scheme {
    const char *name;
    QRgb window;
    QRgb base;
    QRgb text;
    QRgb highlight;
    QRgb highlightedText;
};

constexpr Scheme schemes[] = {
    {"light", 0xFFEFF0F1, 0xFFFFFFFF, 0xFF232629, 0xFF3DAEE9, 0xFFFFFFFF},
    {"dark", 0xFF2A2E32, 0xFF1B1E20, 0xFFFCFCFC, 0xFF3DAEE9, 0xFFFFFFFF},
};

QPalette paletteOf(const Scheme &scheme)
{
    QPalette palette{QColor(scheme.window), QColor(scheme.window)};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(scheme.text));
    palette.setColor(QPalette::Base, QColor(scheme.base));
    palette.setColor(QPalette::Highlight, QColor(scheme.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(scheme.highlightedText));
    return palette;
}

int printNames(const FormCatalogue &catalogue, const QString &name)
{
    TestContext world;
    const std::unique_ptr<QWidget> form(catalogue.make(name, world, nullptr));
    if (!form) {
        QTextStream(stderr) << "there is no form " << name << '\n';
        return 1;
    }
    QTextStream(stdout) << formNamesText(*form);
    return 0;
}

int takePictures(const FormCatalogue &catalogue, const QDir &folder, const QString &scale)
{
    for (const Scheme &scheme : schemes) {
        QApplication::setPalette(paletteOf(scheme));
        const QStringList names = catalogue.names();
        for (const QString &name : names) {
            TestContext world;
            world.prompts.onFailure = [](const QString &message) { qWarning("%s", qPrintable(message)); };
            const std::unique_ptr<QWidget> form(catalogue.make(name, world, nullptr));
            form->show();
            if (!QTest::qWaitForWindowExposed(form.get()))
                return 1;
            auto *tabs = form->findChild<QTabWidget *>();
            for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
                if (tabs)
                    tabs->setCurrentIndex(page);
                const QString part = page > 0 ? u"-page%1"_s.arg(page) : QString();
                const QString file = name + part + u"-%1@%2x.png"_s.arg(QLatin1StringView(scheme.name), scale);
                if (!form->grab().save(folder.filePath(file))) {
                    QTextStream(stderr) << folder.filePath(file) << " can't be written\n";
                    return 1;
                }
            }
        }
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray scale = argc > 2 && argv[1][0] != '-' ? argv[2] : "1";
    qputenv("QT_SCALE_FACTOR", scale);
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == u"--names")
        return printNames(allForms(), arguments[2]);
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1])) {
        QTextStream(stderr) << "usage: formshots DIR [SCALE] | formshots --names FORM\n";
        return 2;
    }
    return takePictures(allForms(), QDir(arguments[1]), QString::fromLatin1(scale));
}

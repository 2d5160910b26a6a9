// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/webenginestart.h"

#include "core/quietmessages.h"
#include "desktop/earlyfonts.h"

#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace zephira {

namespace {

/// Without a display, the library prints its own messages and aborts. While an object of this class lives, these
/// messages are held back, and the abort becomes an orderly exit.
class OrderlyEnd
{
public:
    OrderlyEnd() : m_usual(qInstallMessageHandler(hold)) {}
    ~OrderlyEnd()
    {
        qInstallMessageHandler(m_usual);
        for (const Message &message : held())
            m_usual(message.type, QMessageLogContext(nullptr, 0, nullptr, message.category.constData()), message.text);
        held().clear();
    }
    Q_DISABLE_COPY_MOVE(OrderlyEnd)

private:
    struct Message {
        QtMsgType type;
        QByteArray category;
        QString text;
    };

    static std::vector<Message> &held()
    {
        static std::vector<Message> messages;
        return messages;
    }

    static void hold(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (type == QtFatalMsg)
            end(text);
        held().push_back({type, context.category, text});
    }

    [[noreturn]] static void end(const QString &reason)
    {
        const bool hasNoDisplay = std::ranges::any_of(
            held(), [](const Message &message) { return message.text.contains(u"could not connect to display"); });
        if (hasNoDisplay) {
            std::fputs("Zephira can't start: there is no display to show its window on.\n", stderr);
        } else {
            for (const Message &message : held())
                std::fprintf(stderr, "%s\n", qPrintable(message.text));
            std::fprintf(stderr, "Zephira can't start: %s\n", qPrintable(reason));
        }
        std::_Exit(EXIT_FAILURE);
    }

    const QtMessageHandler m_usual;
};

} // namespace

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
    // These two belong together: without OpenGL the engine can only paint in software.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_QUICK_BACKEND", "software");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // The thread reads the environment, so the last change of the environment is behind us.
    EarlyFonts fonts;
    const QuietMessages quiet;
    const OrderlyEnd orderly;
    auto application = std::make_unique<QApplication>(argc, argv);
    fonts.wait();
    return application;
}

} // namespace zephira

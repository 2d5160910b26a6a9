// SPDX-License-Identifier: GPL-3.0-or-later
// tour DIR: takes the pictures of the read-me file in DIR: the real program on the screen of DISPLAY with a page in the code
// view and in the designer, and the file transfer client with a server.
#include "e2e/ftpsession.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr const char *page = R"(<!DOCTYPE html>
<html lang="en">
<head>
  <meta charset="utf-8">
  <title>Walks in Kent</title>
  <link rel="stylesheet" href="walks.css">
  <style>
    table { border-collapse: collapse; }
    th, td { border: 1px solid #b8c4d0; padding: .3em .8em; }
    .new { color: #0b6b3a; }
  </style>
  <script>
    // The walk of the month comes first.
    function choose(month) {
      const rows = document.querySelectorAll('tr[data-month]');
      return [...rows].find(row => row.dataset.month === month);
    }
  </script>
</head>
<body>
  <h1>Walks in Kent</h1>
  <p>Three walks for a <em>windy</em> day, none longer than ten miles.
     <strong class="new">New:</strong> the path along the cliffs is open again.</p>
  <table>
    <tr><th>Walk</th><th>Miles</th><th>Start</th></tr>
    <tr data-month="may"><td><a href="wye.html">Wye Downs</a></td><td>7</td><td>Wye station</td></tr>
    <tr data-month="june"><td><a href="dover.html">White cliffs</a></td><td>9</td><td>Dover Priory</td></tr>
    <tr data-month="july"><td><a href="hythe.html">Hythe &amp; the canal</a></td><td>5</td><td>Sandling</td></tr>
  </table>
  <h2>Before you go</h2>
  <ul>
    <li>Look at the <a href="tides.html">tides</a>.</li>
    <li>Take a map: <code>OS Explorer 138</code>.</li>
  </ul>
  <!-- The footer is made on the server. -->
  <?php include 'footer.php'; ?>
</body>
</html>
)";

constexpr const char *style = "body { font: 16px/1.5 'Liberation Sans', sans-serif; max-width: 46em; margin: 1em; }\n"
                              "h1 { color: #0b4f9e; }\n";

/// Saves the picture of a window when it has settled.
bool take(const RunningProgram &program, const QString &title, const QString &file)
{
    if (!program.waitForWindow(title))
        return false;
    constexpr int timeToPaint = 1500;
    program.waitUntilIdle();
    QTest::qWait(timeToPaint);
    QProcess import;
    import.start(u"import"_s, {u"-silent"_s, u"-window"_s, program.windowId(title), file});
    return import.waitForFinished() && import.exitCode() == 0 && QFile::exists(file);
}

/// Writes the page and its style sheet, and returns the page's path. The file pane begins with their folder, so that nothing
/// else of this machine shows.
QString writeSite(const ProgramFolder &folder)
{
    folder.write(u"walks/walks.css"_s, style);
    folder.setTips(false);
    folder.setIni(u"Startup"_s, u"rootsel"_s, u"1"_s);
    return folder.write(u"walks/index.html"_s, page);
}

bool takeViews(const QDir &pictures)
{
    const ProgramFolder folder;
    const QString file = writeSite(folder);
    RunningProgram program(folder, {file});
    const QString title = RunningProgram::captionOf(file);
    if (!take(program, title, pictures.filePath(u"code-view.png"_s)))
        return false;
    program.key(title, u"F8 F8"_s);
    return take(program, title, pictures.filePath(u"designer.png"_s));
}

bool takeTransfer(const QDir &pictures)
{
    const FtpServer server(FtpServer::Kind::Pyftpdlib);
    server.addFile("index.html", page);
    server.addFile("walks.css", style);
    server.addFile("wye.html", page);
    const ProgramFolder folder;
    FtpSession session(folder, writeSite(folder));
    session.saveProfile(server, u"Secret word 9"_s);
    session.connectByProfile();
    session.program().key(ftptitles::ftpWindow, u"Tab Home Down Tab"_s);
    return take(session.program(), ftptitles::ftpWindow, pictures.filePath(u"ftp.png"_s));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2 || !QDir(QFile::decodeName(argv[1])).exists()) {
        QTextStream(stderr) << "usage: tour DIR\n";
        return EXIT_FAILURE;
    }
    const QDir pictures(QFile::decodeName(argv[1]));
    return takeViews(pictures) && takeTransfer(pictures) ? EXIT_SUCCESS : EXIT_FAILURE;
}

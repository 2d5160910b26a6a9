<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Abbreviations</name>
    <message>
        <source>Abbreviations aren&apos;t available here.</source>
        <translation>Abkürzungen stehen hier nicht zur Verfügung.</translation>
    </message>
    <message>
        <source>Abbreviations are for HTML, XML and style sheets.</source>
        <translation>Abkürzungen gibt es für HTML, XML und Stylesheets.</translation>
    </message>
    <message>
        <source>Abbreviations can&apos;t be used in a script or a tag.</source>
        <translation>In einem Skript oder einem Tag lassen sich keine Abkürzungen verwenden.</translation>
    </message>
    <message>
        <source>There is no abbreviation before the caret.</source>
        <translation>Vor der Einfügemarke steht keine Abkürzung.</translation>
    </message>
    <message>
        <source>Only HTML and XML can be wrapped.</source>
        <translation>Nur HTML und XML lassen sich umschließen.</translation>
    </message>
    <message>
        <source>There is nothing to wrap: select a text first.</source>
        <translation>Es gibt nichts zu umschließen: Wählen Sie zuerst einen Text aus.</translation>
    </message>
    <message>
        <source>Too many lines are selected: %1 at most can be wrapped.</source>
        <translation>Es sind zu viele Zeilen ausgewählt: Höchstens %1 lassen sich umschließen.</translation>
    </message>
    <message>
        <source>The abbreviation “%1” can&apos;t be understood.</source>
        <translation>Die Abkürzung „%1“ ist nicht verständlich.</translation>
    </message>
    <message>
        <source>The library that expands abbreviations can&apos;t be read.</source>
        <translation>Die Bibliothek, die Abkürzungen auflöst, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The abbreviation is too long: it may have %1 characters.</source>
        <translation>Die Abkürzung ist zu lang: Sie darf %1 Zeichen haben.</translation>
    </message>
    <message>
        <source>The abbreviation “%1” makes too much: it may repeat elements %2 times.</source>
        <translation>Die Abkürzung „%1“ erzeugt zu viel: Sie darf Elemente %2-mal wiederholen.</translation>
    </message>
</context>
<context>
    <name>Carets</name>
    <message>
        <source>There are more places than can be selected at once. The first %1 are selected.</source>
        <translation>Es gibt mehr Stellen, als sich auf einmal auswählen lassen. Die ersten %1 sind ausgewählt.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: zephira [FILE | /nodialog | --ftp | --help | --version]
Zephira is a source editor for people who write web pages.

  FILE        opens the file; several words are joined by spaces into one name
  /nodialog   starts with an empty document, without the tip and the start dialog
  --ftp       does the same and opens the file transfer client
  --help      prints this text and exits
  --version   prints the version and exits
</source>
        <translation>Aufruf: zephira [DATEI | /nodialog | --ftp | --help | --version]
Zephira ist ein Quelltexteditor für alle, die Webseiten schreiben.

  DATEI       öffnet die Datei; mehrere Wörter werden mit Leerzeichen zu einem Namen verbunden
  /nodialog   beginnt mit einem leeren Dokument, ohne Tipp und ohne Startdialog
  --ftp       ebenso, und öffnet das Programm zur Dateiübertragung
  --help      gibt diesen Text aus und endet
  --version   gibt die Version aus und endet
</translation>
    </message>
    <message>
        <source>zephira: there is no option %1, and no such file
Try &apos;zephira --help&apos; for more information.
</source>
        <translation>zephira: Es gibt weder eine Option %1 noch eine solche Datei
Mehr dazu mit &apos;zephira --help&apos;.
</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>No command is called so</source>
        <translation>Kein Befehl heißt so</translation>
    </message>
    <message>
        <source>Code view</source>
        <translation>Codeansicht</translation>
    </message>
    <message>
        <source>, on</source>
        <translation>, eingeschaltet</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>Properties of the code view</source>
        <translation>Eigenschaften der Codeansicht</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <translation>%1 einfügen</translation>
    </message>
    <message>
        <source>%1 toolbar</source>
        <translation>Symbolleiste %1</translation>
    </message>
    <message>
        <source>Tool palette</source>
        <translation>Werkzeugpalette</translation>
    </message>
    <message>
        <source>Heading %1</source>
        <translation>Überschrift %1</translation>
    </message>
    <message>
        <source>Visual designer toolbar</source>
        <translation>Symbolleiste des visuellen Designers</translation>
    </message>
    <message>
        <source>Menu of the file list</source>
        <translation>Menü der Dateiliste</translation>
    </message>
    <message>
        <source>Menu of a tab of snippets</source>
        <translation>Menü eines Reiters mit Textbausteinen</translation>
    </message>
    <message>
        <source>Code view</source>
        <translation>Codeansicht</translation>
    </message>
    <message>
        <source>Only in a document of a markup language</source>
        <translation>Nur in einem Dokument einer Auszeichnungssprache</translation>
    </message>
    <message>
        <source>Only in the code view</source>
        <translation>Nur in der Codeansicht</translation>
    </message>
    <message>
        <source>Only in the visual view</source>
        <translation>Nur in der visuellen Ansicht</translation>
    </message>
    <message>
        <source>Only in the code view, for a markup language</source>
        <translation>Nur in der Codeansicht, für eine Auszeichnungssprache</translation>
    </message>
    <message>
        <source>Needs a file that is selected in the file list</source>
        <translation>Braucht eine Datei, die in der Dateiliste ausgewählt ist</translation>
    </message>
    <message>
        <source>Not while an element of the page is selected as a whole</source>
        <translation>Nicht, solange ein Element der Seite als Ganzes ausgewählt ist</translation>
    </message>
    <message>
        <source>Needs a plug-in</source>
        <translation>Braucht ein Zusatzmodul</translation>
    </message>
    <message>
        <source>Belongs to what its menu was opened on</source>
        <translation>Gehört zu dem, worauf sein Menü geöffnet wurde</translation>
    </message>
    <message>
        <source>Needs a program that this system doesn&apos;t have</source>
        <translation>Braucht ein Programm, das es auf diesem System nicht gibt</translation>
    </message>
    <message>
        <source>Not possible here</source>
        <translation>Hier nicht möglich</translation>
    </message>
    <message>
        <source>Code View</source>
        <translation>Codeansicht</translation>
    </message>
</context>
<context>
    <name>Completion</name>
    <message>
        <source>In all browsers since %1</source>
        <translation>In allen Browsern seit %1</translation>
    </message>
</context>
<context>
    <name>DocumentTree</name>
    <message>
        <source>This tag is no longer in the text.</source>
        <translation>Dieses Tag steht nicht mehr im Text.</translation>
    </message>
</context>
<context>
    <name>EditorPrinter</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>FileErrors</name>
    <message>
        <source>The folder %1 can&apos;t be created: %2.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Zephira can&apos;t start: there is no %1 next to the program or in %2. Please reinstall the program.</source>
        <translation>Zephira kann nicht starten: Weder neben dem Programm noch in %2 liegt %1. Bitte installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a folder that belongs to you, so Zephira doesn&apos;t write temporary files there.</source>
        <translation>%1 ist kein Ordner, der Ihnen gehört, deshalb schreibt Zephira dort keine temporären Dateien.</translation>
    </message>
    <message>
        <source>its folder does not allow new files</source>
        <translation>ihr Ordner lässt keine neuen Dateien zu</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was not saved, because the version on disk, which is not the one that was opened, could not be backed up.</source>
        <translation>Die Datei &quot;%1&quot; wurde nicht gespeichert, weil die Fassung auf dem Datenträger, die nicht die geöffnete ist, sich nicht sichern ließ.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was not saved, because the version on disk, which would be overwritten, could not be backed up.</source>
        <translation>Die Datei &quot;%1&quot; wurde nicht gespeichert, weil die Fassung auf dem Datenträger, die überschrieben würde, sich nicht sichern ließ.</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the disk quota is used up</source>
        <translation>der zugeteilte Speicherplatz ist aufgebraucht</translation>
    </message>
    <message>
        <source>it is larger than the system allows</source>
        <translation>sie ist größer, als das System zulässt</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>permission was denied</source>
        <translation>die Berechtigung fehlt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>sie ist ein Ordner</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>ein Teil ihres Pfads ist kein Ordner</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation>es gibt sie nicht</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>ihr Name ist zu lang</translation>
    </message>
    <message>
        <source>its symbolic links form a loop</source>
        <translation>ihre symbolischen Verknüpfungen führen im Kreis</translation>
    </message>
    <message>
        <source>the disk reported an error</source>
        <translation>der Datenträger meldete einen Fehler</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>es sind zu viele Dateien geöffnet</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Arbeitsspeicher reicht nicht</translation>
    </message>
    <message>
        <source>it is a program that is running</source>
        <translation>sie ist ein Programm, das gerade läuft</translation>
    </message>
    <message>
        <source>its folder does not exist</source>
        <translation>ihren Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be removed: %2.</source>
        <translation>Die Datei &quot;%1&quot; konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read: %2.</source>
        <translation>Die Datei &quot;%1&quot; konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be saved: %2.</source>
        <translation>Die Datei &quot;%1&quot; konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>A template must have a name.</source>
        <translation>Eine Vorlage muss einen Namen haben.</translation>
    </message>
    <message>
        <source>A template&apos;s name can&apos;t contain a line end, a tab or any other control character.</source>
        <translation>Der Name einer Vorlage darf kein Zeilenende, keinen Tabulator und kein anderes Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>A template&apos;s name can&apos;t contain a folder: %1</source>
        <translation>Der Name einer Vorlage darf keinen Ordner enthalten: %1</translation>
    </message>
    <message>
        <source>A byte that is not valid UTF-8 in line %1 can&apos;t be stored as %2.</source>
        <translation>Ein Byte in Zeile %1, das kein gültiges UTF-8 ist, lässt sich nicht als %2 speichern.</translation>
    </message>
    <message>
        <source>The character %1 in line %2 can&apos;t be stored as %3.</source>
        <translation>Das Zeichen %1 in Zeile %2 lässt sich nicht als %3 speichern.</translation>
    </message>
    <message>
        <source>The text can&apos;t be stored as Windows-1252, because it would be read back as %1.</source>
        <translation>Der Text lässt sich nicht als Windows-1252 speichern, weil er beim Lesen als %1 gälte.</translation>
    </message>
    <message>
        <source>it has too many lines</source>
        <translation>sie hat zu viele Zeilen</translation>
    </message>
    <message>
        <source>its name contains a NUL character</source>
        <translation>ihr Name enthält ein Nullzeichen</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Zephira can&apos;t start: %1 isn&apos;t a folder that belongs to you.</source>
        <translation>Zephira kann nicht starten: %1 ist kein Ordner, der Ihnen gehört.</translation>
    </message>
</context>
<context>
    <name>LivePace</name>
    <message>
        <source>This page is very large: it is shown when it is saved or reloaded.</source>
        <translation>Diese Seite ist sehr groß: Sie wird erst beim Speichern oder Neuladen gezeigt.</translation>
    </message>
    <message>
        <source>This page is large: it is shown again two seconds after the last change.</source>
        <translation>Diese Seite ist groß: Sie wird zwei Sekunden nach der letzten Änderung neu gezeigt.</translation>
    </message>
    <message>
        <source>Full width</source>
        <translation>Volle Breite</translation>
    </message>
    <message>
        <source>Phone (375)</source>
        <translation>Telefon (375)</translation>
    </message>
    <message>
        <source>Tablet (768)</source>
        <translation>Tablet (768)</translation>
    </message>
    <message>
        <source>Desktop (1280)</source>
        <translation>Bildschirm (1280)</translation>
    </message>
    <message>
        <source>Other width</source>
        <translation>Andere Breite</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>The picture %1 has %2 x %3 pixels. Pictures above 100 megapixels aren&apos;t shown.</source>
        <translation>Das Bild %1 hat %2 x %3 Pixel. Bilder mit mehr als 100 Megapixeln werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>The picture %1 can&apos;t be shown: %2.</source>
        <translation>Das Bild %1 kann nicht gezeigt werden: %2.</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>&lt;/%1&gt; closes nothing.</source>
        <translation>&lt;/%1&gt; schließt nichts.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; isn&apos;t closed.</source>
        <translation>&lt;%1&gt; wird nicht geschlossen.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; isn&apos;t closed before %2.</source>
        <translation>&lt;%1&gt; wird vor %2 nicht geschlossen.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no label.</source>
        <translation>&lt;%1&gt; hat keine Beschriftung.</translation>
    </message>
    <message>
        <source>A quotation mark seems to be missing behind this one.</source>
        <translation>Hinter diesem Anführungszeichen scheint eines zu fehlen.</translation>
    </message>
    <message>
        <source>This quotation mark doesn&apos;t belong here.</source>
        <translation>Dieses Anführungszeichen gehört nicht hierher.</translation>
    </message>
    <message>
        <source>This quotation mark has no partner.</source>
        <translation>Zu diesem Anführungszeichen fehlt das zweite.</translation>
    </message>
    <message>
        <source>The tag has no &gt; at its end.</source>
        <translation>Am Ende des Tags fehlt &gt;.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no attribute %2.</source>
        <translation>&lt;%1&gt; hat kein Attribut %2.</translation>
    </message>
    <message>
        <source>The tag &lt;%1&gt; isn&apos;t known.</source>
        <translation>Das Tag &lt;%1&gt; ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The attribute %1 stands here twice.</source>
        <translation>Das Attribut %1 steht hier zweimal.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no alt: a text in place of the picture.</source>
        <translation>&lt;%1&gt; hat kein alt: einen Text anstelle des Bildes.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no lang: the language of the page.</source>
        <translation>&lt;%1&gt; hat kein lang: die Sprache der Seite.</translation>
    </message>
    <message>
        <source>The id %1 stands in this page before.</source>
        <translation>Die id %1 steht in dieser Seite schon weiter oben.</translation>
    </message>
    <message>
        <source>The page has no title.</source>
        <translation>Die Seite hat keinen Titel.</translation>
    </message>
    <message>
        <source>The file %1 doesn&apos;t exist.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Nothing in this page has the id %1.</source>
        <translation>Nichts in dieser Seite hat die id %1.</translation>
    </message>
    <message>
        <source>The comment has no --&gt; at its end.</source>
        <translation>Am Ende des Kommentars fehlt --&gt;.</translation>
    </message>
    <message>
        <source>The property %1 isn&apos;t known.</source>
        <translation>Die Eigenschaft %1 ist nicht bekannt.</translation>
    </message>
    <message>
        <source>There is no colon behind the property %1.</source>
        <translation>Hinter der Eigenschaft %1 steht kein Doppelpunkt.</translation>
    </message>
    <message>
        <source>This } closes nothing.</source>
        <translation>Dieses } schließt nichts.</translation>
    </message>
    <message>
        <source>This { isn&apos;t closed.</source>
        <translation>Dieses { wird nicht geschlossen.</translation>
    </message>
</context>
<context>
    <name>RecoveryBar</name>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Open the text as a new document</source>
        <translation>Den Text als neues Dokument öffnen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Leave the copy in its folder and don&apos;t ask again</source>
        <translation>Die Kopie in ihrem Ordner lassen und nicht mehr fragen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Remove the copy</source>
        <translation>Die Kopie entfernen</translation>
    </message>
    <message>
        <source>Open the report as the document</source>
        <translation>Den Bericht als Dokument öffnen</translation>
    </message>
    <message>
        <source>Leave the report in its folder and don&apos;t ask again</source>
        <translation>Den Bericht in seinem Ordner lassen und nicht mehr fragen</translation>
    </message>
    <message>
        <source>Remove the report</source>
        <translation>Den Bericht entfernen</translation>
    </message>
</context>
<context>
    <name>RemoteBar</name>
    <message>
        <source>%1 others</source>
        <translation>%1 weiteren</translation>
    </message>
    <message>
        <source>This page wants to load from %1.</source>
        <translation>Diese Seite möchte von %1 laden.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
</context>
<context>
    <name>SearchReport</name>
    <message>
        <source>It has changed since the search and was left as it is.</source>
        <translation>Sie hat sich seit der Suche geändert und blieb, wie sie ist.</translation>
    </message>
    <message>
        <source>It was not changed, because no copy of it could be kept.</source>
        <translation>Sie wurde nicht geändert, weil sich keine Kopie von ihr aufbewahren ließ.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 Treffer</translation>
    </message>
    <message>
        <source>%1 matches</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 Ordner</translation>
    </message>
    <message>
        <source>Searching: %1 in %2, %3 searched…</source>
        <translation>Suche läuft: %1 in %2, %3 durchsucht …</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <source>%1 in %2, %3 searched.</source>
        <translation>%1 in %2, %3 durchsucht.</translation>
    </message>
    <message>
        <source>There are more: the search ended here.</source>
        <translation>Es gibt mehr: Die Suche endete hier.</translation>
    </message>
    <message>
        <source>The expression needs too many steps in %1.</source>
        <translation>Der Ausdruck braucht zu viele Schritte in %1.</translation>
    </message>
    <message>
        <source>%1 without text</source>
        <translation>%1 ohne Text</translation>
    </message>
    <message>
        <source>%1 larger than %2 MiB</source>
        <translation>%1 mit mehr als %2 MiB</translation>
    </message>
    <message>
        <source>%1 that can&apos;t be read</source>
        <translation>%1 nicht lesbar</translation>
    </message>
    <message>
        <source>%1 of other file systems</source>
        <translation>%1 auf anderen Dateisystemen</translation>
    </message>
    <message>
        <source>1 name that isn&apos;t valid text</source>
        <translation>1 Name, der kein gültiger Text ist</translation>
    </message>
    <message>
        <source>%1 names that aren&apos;t valid text</source>
        <translation>%1 Namen, die kein gültiger Text sind</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>Ausgelassen: %1.</translation>
    </message>
</context>
<context>
    <name>Shell</name>
    <message>
        <source>%1 can&apos;t be found.</source>
        <translation>%1 ist nicht zu finden.</translation>
    </message>
    <message>
        <source>The desktop has no program that opens %1.</source>
        <translation>Die Arbeitsumgebung hat kein Programm, das %1 öffnet.</translation>
    </message>
    <message>
        <source>The program %1 can&apos;t be found.</source>
        <translation>Das Programm %1 ist nicht zu finden.</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a program.</source>
        <translation>%1 ist kein Programm.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <translation>%1 lässt sich nicht starten: %2.</translation>
    </message>
</context>
<context>
    <name>Spelling</name>
    <message>
        <source>There is no spelling dictionary. Please install the package hunspell-en-us.</source>
        <translation>Es gibt kein Wörterbuch für die Rechtschreibung. Bitte installieren Sie das Paket hunspell-en-us.</translation>
    </message>
    <message>
        <source>There is no spelling dictionary %1.</source>
        <translation>Das Wörterbuch %1 für die Rechtschreibung gibt es nicht.</translation>
    </message>
    <message>
        <source>The list of names %1 is missing, so tags and keywords count as unknown words.</source>
        <translation>Die Namensliste %1 fehlt, deshalb gelten Tags und Schlüsselwörter als unbekannte Wörter.</translation>
    </message>
    <message>
        <source>The file %1 is too large for a list of words, so it isn&apos;t used.</source>
        <translation>Die Datei %1 ist für eine Wortliste zu groß und wird deshalb nicht verwendet.</translation>
    </message>
    <message>
        <source>Not every line of the file %1 is a word. Unused lines: %2; the first is line %3.</source>
        <translation>Nicht jede Zeile der Datei %1 ist ein Wort. Nicht verwendete Zeilen: %2; die erste ist Zeile %3.</translation>
    </message>
    <message>
        <source>This word is too long to be added.</source>
        <translation>Dieses Wort ist zu lang, um aufgenommen zu werden.</translation>
    </message>
</context>
<context>
    <name>Symbols</name>
    <message>
        <source>Heading %1</source>
        <translation>Überschrift %1</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>Symbols of the document</source>
        <translation>Symbole des Dokuments</translation>
    </message>
    <message>
        <source>Search for a heading, an id, a rule or a function</source>
        <translation>Überschrift, Id, Regel oder Funktion suchen</translation>
    </message>
    <message>
        <source>Nothing in the document is called so</source>
        <translation>Nichts im Dokument heißt so</translation>
    </message>
</context>
<context>
    <name>TextMenu</name>
    <message>
        <source>Find in &amp;Project...</source>
        <translation>Im &amp;Projekt suchen...</translation>
    </message>
    <message>
        <source>Find a text in the files of the project, and replace it there</source>
        <translation>Einen Text in den Dateien des Projekts suchen und dort ersetzen</translation>
    </message>
    <message>
        <source>&amp;Command Palette...</source>
        <translation>&amp;Befehlspalette...</translation>
    </message>
    <message>
        <source>Search for a command and run it</source>
        <translation>Einen Befehl suchen und ausführen</translation>
    </message>
    <message>
        <source>&amp;Symbol...</source>
        <translation>&amp;Symbol...</translation>
    </message>
    <message>
        <source>Go to a heading, an id, a rule or a function of this document</source>
        <translation>Zu einer Überschrift, Id, Regel oder Funktion dieses Dokuments gehen</translation>
    </message>
    <message>
        <source>&amp;Expand Abbreviation</source>
        <translation>Abkürzung &amp;auflösen</translation>
    </message>
    <message>
        <source>Make markup or style sheets of the abbreviation before the caret, such as ul&gt;li*3</source>
        <translation>Aus der Abkürzung vor der Einfügemarke Auszeichnungen oder Stylesheets machen, etwa aus ul&gt;li*3</translation>
    </message>
    <message>
        <source>&amp;Wrap with Abbreviation...</source>
        <translation>Mit Abkürzung &amp;umschließen...</translation>
    </message>
    <message>
        <source>Put the elements of an abbreviation around the selection</source>
        <translation>Die Elemente einer Abkürzung um die Auswahl setzen</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Vervollständigen</translation>
    </message>
    <message>
        <source>List what may stand at the caret</source>
        <translation>Auflisten, was an der Einfügemarke stehen kann</translation>
    </message>
    <message>
        <source>List While &amp;Typing</source>
        <translation>Beim &amp;Tippen auflisten</translation>
    </message>
    <message>
        <source>List by itself what may stand behind &lt;, &amp;, : and a blank in a tag</source>
        <translation>Von selbst auflisten, was hinter &lt;, &amp;, : und einem Leerzeichen in einem Tag stehen kann</translation>
    </message>
    <message>
        <source>Change &amp;Color...</source>
        <translation>&amp;Farbe ändern...</translation>
    </message>
    <message>
        <source>Choose another color in place of the one at the caret</source>
        <translation>Statt der Farbe an der Einfügemarke eine andere wählen</translation>
    </message>
    <message>
        <source>&amp;Join Lines</source>
        <translation>Zeilen &amp;zusammenfügen</translation>
    </message>
    <message>
        <source>Make one line of the selected lines, or of this one and the next</source>
        <translation>Aus den ausgewählten Zeilen oder dieser und der nächsten eine Zeile machen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Exchange the selected lines, or this one, with the line above</source>
        <translation>Die ausgewählten Zeilen oder diese mit der Zeile darüber vertauschen</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Exchange the selected lines, or this one, with the line below</source>
        <translation>Die ausgewählten Zeilen oder diese mit der Zeile darunter vertauschen</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Verdoppeln</translation>
    </message>
    <message>
        <source>Repeat the selected text behind itself, or this line below</source>
        <translation>Den ausgewählten Text hinter sich oder diese Zeile darunter wiederholen</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected lines, or this one</source>
        <translation>Die ausgewählten Zeilen oder diese löschen</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Sortieren</translation>
    </message>
    <message>
        <source>Bring the selected lines, or all lines, into the order of letters and numbers</source>
        <translation>Die ausgewählten oder alle Zeilen nach Buchstaben und Zahlen ordnen</translation>
    </message>
    <message>
        <source>Remove Trailing &amp;Blanks</source>
        <translation>Leerzeichen am Zeilen&amp;ende entfernen</translation>
    </message>
    <message>
        <source>Remove the blanks at the ends of the selected lines, or of all lines</source>
        <translation>Die Leerzeichen am Ende der ausgewählten oder aller Zeilen entfernen</translation>
    </message>
    <message>
        <source>&amp;Breadcrumb</source>
        <translation>&amp;Elementpfad</translation>
    </message>
    <message>
        <source>Show the elements around the caret in a line below the text</source>
        <translation>Die Elemente um die Einfügemarke in einer Zeile unter dem Text zeigen</translation>
    </message>
    <message>
        <source>&amp;Live Page</source>
        <translation>&amp;Live-Seite</translation>
    </message>
    <message>
        <source>Show the page beside its source while you type</source>
        <translation>Die Seite neben ihrem Quelltext zeigen, während Sie tippen</translation>
    </message>
    <message>
        <source>Select &amp;All Occurrences</source>
        <translation>&amp;Alle Vorkommen auswählen</translation>
    </message>
    <message>
        <source>Select the selected text, or this word, everywhere</source>
        <translation>Den ausgewählten Text oder dieses Wort überall auswählen</translation>
    </message>
    <message>
        <source>Caret in &amp;Each Line</source>
        <translation>Einfügemarke in &amp;jede Zeile</translation>
    </message>
    <message>
        <source>Put a caret at the end of each selected line</source>
        <translation>Eine Einfügemarke an das Ende jeder ausgewählten Zeile setzen</translation>
    </message>
    <message>
        <source>Go to the &amp;Last Edit</source>
        <translation>Zur &amp;letzten Änderung</translation>
    </message>
    <message>
        <source>Go to where the text was changed last, and from there to where it was changed before</source>
        <translation>Dorthin gehen, wo der Text zuletzt geändert wurde, und von dort zu den Änderungen davor</translation>
    </message>
    <message>
        <source>&amp;Upper Case</source>
        <translation>&amp;Großbuchstaben</translation>
    </message>
    <message>
        <source>Make capital letters of the selected text, or of this word</source>
        <translation>Aus dem ausgewählten Text oder diesem Wort Großbuchstaben machen</translation>
    </message>
    <message>
        <source>&amp;Lower Case</source>
        <translation>&amp;Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Make small letters of the selected text, or of this word</source>
        <translation>Aus dem ausgewählten Text oder diesem Wort Kleinbuchstaben machen</translation>
    </message>
    <message>
        <source>&amp;Capitalise Words</source>
        <translation>&amp;Wörter groß beginnen</translation>
    </message>
    <message>
        <source>Begin each word of the selected text, or this word, with a capital letter</source>
        <translation>Jedes Wort des ausgewählten Texts oder dieses Wort mit einem Großbuchstaben beginnen</translation>
    </message>
    <message>
        <source>&amp;Comment</source>
        <translation>&amp;Kommentar</translation>
    </message>
    <message>
        <source>Make a comment of the selected text or of this line, or text of a comment</source>
        <translation>Aus dem ausgewählten Text oder dieser Zeile einen Kommentar machen, oder aus einem Kommentar Text</translation>
    </message>
    <message>
        <source>&amp;Rename Tag</source>
        <translation>&amp;Tag umbenennen</translation>
    </message>
    <message>
        <source>Select the names in the start tag and the end tag, to type both at once</source>
        <translation>Die Namen im Start-Tag und im End-Tag auswählen, um beide zugleich zu tippen</translation>
    </message>
    <message>
        <source>Select &amp;Enclosing Element</source>
        <translation>&amp;Umgebendes Element auswählen</translation>
    </message>
    <message>
        <source>Select the element around the caret, or the next one around it</source>
        <translation>Das Element um die Einfügemarke auswählen, oder das nächste darum</translation>
    </message>
    <message>
        <source>Select &amp;Inner Element</source>
        <translation>&amp;Inneres Element auswählen</translation>
    </message>
    <message>
        <source>Select again what was selected before the element around it</source>
        <translation>Wieder auswählen, was vor dem umgebenden Element ausgewählt war</translation>
    </message>
    <message>
        <source>&amp;Go To</source>
        <translation>Ge&amp;he zu</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>C&amp;ompletion</source>
        <translation>&amp;Vervollständigung</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>Einsetze&amp;n</translation>
    </message>
    <message>
        <source>&amp;Abbreviations</source>
        <translation>A&amp;bkürzungen</translation>
    </message>
    <message>
        <source>Ca&amp;rets</source>
        <translation>Einfüge&amp;marken</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Zeilen</translation>
    </message>
    <message>
        <source>Le&amp;tters</source>
        <translation>B&amp;uchstaben</translation>
    </message>
    <message>
        <source>C&amp;ode</source>
        <translation>C&amp;ode</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Anzei&amp;gen</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>&amp;Nächster Fehler</translation>
    </message>
    <message>
        <source>Go to the next place where something is wrong, and tell what</source>
        <translation>Zur nächsten Stelle gehen, an der etwas nicht stimmt, und sagen, was</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>&amp;Voriger Fehler</translation>
    </message>
    <message>
        <source>Go to the place before where something is wrong, and tell what</source>
        <translation>Zur vorigen Stelle gehen, an der etwas nicht stimmt, und sagen, was</translation>
    </message>
    <message>
        <source>&amp;List Problems</source>
        <translation>Fehler auf&amp;listen</translation>
    </message>
    <message>
        <source>Open the panel with the list of what is wrong in this document</source>
        <translation>Die Liste mit allem öffnen, was in diesem Dokument nicht stimmt</translation>
    </message>
    <message>
        <source>&amp;Mark Problems</source>
        <translation>Fehler &amp;markieren</translation>
    </message>
    <message>
        <source>Check the document a moment after each change, and mark what is wrong</source>
        <translation>Das Dokument kurz nach jeder Änderung prüfen und markieren, was nicht stimmt</translation>
    </message>
    <message>
        <source>&amp;Color Squares</source>
        <translation>&amp;Farbfelder</translation>
    </message>
    <message>
        <source>Show a small square of its color before each color in the text</source>
        <translation>Vor jeder Farbe im Text ein kleines Feld in dieser Farbe zeigen</translation>
    </message>
    <message>
        <source>Put the closing bracket, quote or tag behind the caret as soon as the opening one is typed</source>
        <translation>Schließende Klammern, Anführungszeichen und Tags hinter die Einfügemarke setzen, sobald die öffnenden getippt sind</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Fehler</translation>
    </message>
    <message>
        <source>Close &amp;While Typing</source>
        <translation>Beim Tippen s&amp;chließen</translation>
    </message>
</context>
<context>
    <name>ToolPanel</name>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
</context>
<context>
    <name>zephira::Breadcrumb</name>
    <message>
        <source>Elements around the caret</source>
        <translation>Elemente um die Einfügemarke</translation>
    </message>
    <message>
        <source>There are more elements outside of these</source>
        <translation>Weiter außen gibt es noch mehr Elemente</translation>
    </message>
    <message>
        <source>Select this element: &lt;code&gt;&amp;lt;%1&amp;gt;&lt;/code&gt;</source>
        <translation>Dieses Element auswählen: &lt;code&gt;&amp;lt;%1&amp;gt;&lt;/code&gt;</translation>
    </message>
</context>
<context>
    <name>zephira::CodeMax</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>Toggle &amp;Bookmark</source>
        <translation>Lesezeichen umschal&amp;ten</translation>
    </message>
    <message>
        <source>Propert&amp;ies…</source>
        <translation>E&amp;igenschaften …</translation>
    </message>
</context>
<context>
    <name>zephira::ColorPick</name>
    <message>
        <source>A marked box holds no color value.</source>
        <translation>Ein markiertes Feld enthält keinen Farbwert.</translation>
    </message>
</context>
<context>
    <name>zephira::ColourPortal</name>
    <message>
        <source>The desktop didn&apos;t answer.</source>
        <translation>Die Arbeitsumgebung hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>This desktop doesn&apos;t let programs read the screen.</source>
        <translation>Diese Arbeitsumgebung lässt Programme den Bildschirm nicht lesen.</translation>
    </message>
</context>
<context>
    <name>zephira::CompletionPopup</name>
    <message>
        <source>Completion</source>
        <translation>Vervollständigung</translation>
    </message>
</context>
<context>
    <name>zephira::FindDialog</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Fi&amp;nd what:</source>
        <translation>Suchen &amp;nach:</translation>
    </message>
    <message>
        <source>Find what</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>Re&amp;place with:</source>
        <translation>&amp;Ersetzen durch:</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Whole &amp;word</source>
        <translation>Ganzes &amp;Wort</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>Regulärer Ausdruc&amp;k</translation>
    </message>
    <message>
        <source>In the replacement, \1 to \9 insert the groups, \n a line end, \t a tab. \U and \L make what follows capital or small letters, up to \E; \u and \l the next letter.</source>
        <translation>Im Ersatztext fügen \1 bis \9 die Gruppen ein, \n ein Zeilenende, \t einen Tabulator. \U und \L machen aus dem Folgenden bis \E Groß- oder Kleinbuchstaben, \u und \l aus dem nächsten Buchstaben.</translation>
    </message>
    <message>
        <source>In &amp;selection</source>
        <translation>In der Auswa&amp;hl</translation>
    </message>
    <message>
        <source>Wrap &amp;around</source>
        <translation>A&amp;m Ende von vorn</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Search result</source>
        <translation>Ergebnis der Suche</translation>
    </message>
    <message>
        <source>Number of matches</source>
        <translation>Anzahl der Treffer</translation>
    </message>
    <message>
        <source>&amp;Find Next</source>
        <translation>Wei&amp;tersuchen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Er&amp;setzen</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Replaced; there are no more matches.</source>
        <translation>Ersetzt; es gibt keine weiteren Treffer.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Continued from the end.</source>
        <translation>Vom Ende her fortgesetzt.</translation>
    </message>
    <message>
        <source>Continued from the beginning.</source>
        <translation>Von vorn fortgesetzt.</translation>
    </message>
    <message>
        <source>1 replacement.</source>
        <translation>1 Ersetzung.</translation>
    </message>
    <message>
        <source>%1 replacements.</source>
        <translation>%1 Ersetzungen.</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>1 Treffer</translation>
    </message>
    <message>
        <source>%1 matches</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>The expression needs too many steps</source>
        <translation>Der Ausdruck braucht zu viele Schritte</translation>
    </message>
</context>
<context>
    <name>zephira::GoToDialog</name>
    <message>
        <source>Go To Line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>&amp;Line number:</source>
        <translation>&amp;Zeilennummer:</translation>
    </message>
    <message>
        <source>Line number</source>
        <translation>Zeilennummer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>&amp;Line number (1 to %1):</source>
        <translation>&amp;Zeilennummer (1 bis %1):</translation>
    </message>
    <message>
        <source>Please enter a number from 1 to %1.</source>
        <translation>Bitte geben Sie eine Zahl von 1 bis %1 ein.</translation>
    </message>
</context>
<context>
    <name>zephira::ImageMap</name>
    <message>
        <source>Finished picture and map</source>
        <translation>Fertiges Bild mit Karte</translation>
    </message>
    <message>
        <source>Copy the text from here. Ctrl+F6 leaves it.</source>
        <translation>Kopieren Sie den Text von hier. Strg+F6 verlässt ihn.</translation>
    </message>
</context>
<context>
    <name>zephira::LiveDock</name>
    <message>
        <source>Live Page</source>
        <translation>Live-Seite</translation>
    </message>
</context>
<context>
    <name>zephira::LivePane</name>
    <message>
        <source>Width of the page</source>
        <translation>Breite der Seite</translation>
    </message>
    <message>
        <source>How wide the page is, in its own pixels; a page that is wider than the panel is made smaller</source>
        <translation>Wie breit die Seite ist, in ihren eigenen Pixeln; eine Seite, die breiter als das Feld ist, wird verkleinert</translation>
    </message>
    <message>
        <source>Another width of the page</source>
        <translation>Eine andere Breite der Seite</translation>
    </message>
    <message>
        <source>The page&apos;s width in its own pixels</source>
        <translation>Die Breite der Seite in ihren eigenen Pixeln</translation>
    </message>
    <message>
        <source>Colors of the page</source>
        <translation>Farben der Seite</translation>
    </message>
    <message>
        <source>The colors that the page&apos;s style sheets are asked for</source>
        <translation>Die Farben, nach denen die Stylesheets der Seite gefragt werden</translation>
    </message>
    <message>
        <source>As desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Load the page again</source>
        <translation>Die Seite noch einmal laden</translation>
    </message>
    <message>
        <source>The page did not answer and was ended. It is shown again after the next change.</source>
        <translation>Die Seite hat nicht geantwortet und wurde beendet. Sie wird nach der nächsten Änderung wieder gezeigt.</translation>
    </message>
    <message>
        <source>Only pages have a live page.</source>
        <translation>Nur Seiten haben eine Live-Seite.</translation>
    </message>
</context>
<context>
    <name>zephira::MapPicture</name>
    <message>
        <source>Open a picture from the menu File, or drop one here.

Draw with the mouse. Or move the cross-hair with the arrow keys,
and press and release with the space bar.</source>
        <translation>Öffnen Sie ein Bild mit dem Menü File, oder lassen Sie eines hier fallen.

Zeichnen Sie mit der Maus. Oder bewegen Sie das Fadenkreuz mit den
Pfeiltasten, und drücken und lösen Sie mit der Leertaste.</translation>
    </message>
</context>
<context>
    <name>zephira::OutlineTree</name>
    <message>
        <source>Go to Tag</source>
        <translation>Gehe zum Tag</translation>
    </message>
    <message>
        <source>Select the tag in the text</source>
        <translation>Das Tag im Text auswählen</translation>
    </message>
</context>
<context>
    <name>zephira::PictureTip</name>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
</context>
<context>
    <name>zephira::ProblemList</name>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>zephira::Problems</name>
    <message>
        <source>Problems</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>This document is larger than 4 MB, so it isn&apos;t checked.</source>
        <translation>Dieses Dokument ist größer als 4 MB und wird deshalb nicht geprüft.</translation>
    </message>
    <message>
        <source>This document contains bytes that aren&apos;t text, so it isn&apos;t checked.</source>
        <translation>Dieses Dokument enthält Bytes, die kein Text sind, und wird deshalb nicht geprüft.</translation>
    </message>
    <message>
        <source>Checking this document takes too long, so it isn&apos;t checked any more.</source>
        <translation>Dieses Dokument zu prüfen dauert zu lange; es wird nicht mehr geprüft.</translation>
    </message>
    <message>
        <source>Not checked.</source>
        <translation>Nicht geprüft.</translation>
    </message>
    <message>
        <source>There are more problems: these are the first %1.</source>
        <translation>Es gibt weitere Fehler: Dies sind die ersten %1.</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>Es wurden keine Fehler gefunden.</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Fehler (%1)</translation>
    </message>
    <message>
        <source>Problems aren&apos;t looked for.</source>
        <translation>Fehler werden nicht gesucht.</translation>
    </message>
    <message>
        <source>The document is being checked.</source>
        <translation>Das Dokument wird gerade geprüft.</translation>
    </message>
</context>
<context>
    <name>zephira::ProblemsPage</name>
    <message>
        <source>Problems</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Return or a double click goes to the place</source>
        <translation>Eingabetaste oder Doppelklick führt zu der Stelle</translation>
    </message>
</context>
<context>
    <name>zephira::PropertiesDialog</name>
    <message>
        <source>Editor Properties</source>
        <translation>Eigenschaften des Editors</translation>
    </message>
    <message>
        <source>&amp;Colors and Styles</source>
        <translation>&amp;Farben und Stile</translation>
    </message>
    <message>
        <source>&amp;Item:</source>
        <translation>&amp;Element:</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>C&amp;olor:</source>
        <translation>Fa&amp;rbe:</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Die Farbe wählen</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>&amp;Hintergrund:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Choose the background color</source>
        <translation>Die Hintergrundfarbe wählen</translation>
    </message>
    <message>
        <source>Same as &amp;window</source>
        <translation>Wie das Fe&amp;nster</translation>
    </message>
    <message>
        <source>Use the window&apos;s color as the background</source>
        <translation>Die Farbe des Fensters als Hintergrund verwenden</translation>
    </message>
    <message>
        <source>&amp;Style:</source>
        <translation>&amp;Stil:</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>S&amp;chrift</translation>
    </message>
    <message>
        <source>F&amp;amily:</source>
        <translation>Fa&amp;milie:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Bol&amp;d</source>
        <translation>Fe&amp;tt</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underlined</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>&amp;Durchgestrichen</translation>
    </message>
    <message>
        <source>&amp;Editing</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Tab width:</source>
        <translation>Tabulator&amp;weite:</translation>
    </message>
    <message>
        <source>Tab width</source>
        <translation>Tabulatorweite</translation>
    </message>
    <message>
        <source>Line after colum&amp;n:</source>
        <translation>Linie hinter S&amp;palte:</translation>
    </message>
    <message>
        <source>Line after column</source>
        <translation>Linie hinter Spalte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Insert spaces for ta&amp;bs</source>
        <translation>&amp;Leerzeichen statt Tabulatoren</translation>
    </message>
    <message>
        <source>&amp;Indent new lines</source>
        <translation>Neue Zeilen &amp;einrücken</translation>
    </message>
    <message>
        <source>&amp;Wrap long lines</source>
        <translation>Lange Zeilen &amp;umbrechen</translation>
    </message>
    <message>
        <source>&amp;Match brackets and tags</source>
        <translation>Passende &amp;Klammern und Tags zeigen</translation>
    </message>
    <message>
        <source>&amp;Highlight the current line</source>
        <translation>Aktuelle Zeile &amp;hervorheben</translation>
    </message>
    <message>
        <source>&amp;Show white space</source>
        <translation>Leer&amp;raum zeigen</translation>
    </message>
    <message>
        <source>Show &amp;line numbers</source>
        <translation>&amp;Zeilennummern zeigen</translation>
    </message>
    <message>
        <source>Show the left ma&amp;rgin</source>
        <translation>Linken Ra&amp;nd zeigen</translation>
    </message>
    <message>
        <source>Show f&amp;olds</source>
        <translation>Faltun&amp;gen zeigen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Bold italic</source>
        <translation>Fett und kursiv</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Unterstrichen</translation>
    </message>
</context>
<context>
    <name>zephira::RecoveryBar</name>
    <message>
        <source>Texts that were not saved</source>
        <translation>Texte, die nicht gespeichert wurden</translation>
    </message>
    <message>
        <source>%1 was not saved when the program ended (started %2).</source>
        <translation>%1 war nicht gespeichert, als das Programm endete (gestartet %2).</translation>
    </message>
    <message>
        <source>It holds addresses in the program and nothing of your documents. It is sent nowhere.</source>
        <translation>Er enthält Adressen im Programm und nichts aus Ihren Dokumenten. Er wird nirgendwohin gesendet.</translation>
    </message>
    <message>
        <source>The program crashed. Report: %1</source>
        <translation>Das Programm ist abgestürzt. Bericht: %1</translation>
    </message>
    <message>
        <source>Of the program that was started %1:</source>
        <translation>Von dem Programm, das %1 gestartet wurde:</translation>
    </message>
</context>
<context>
    <name>zephira::RemoteBar</name>
    <message>
        <source>What the page wants from other machines</source>
        <translation>Was die Seite von anderen Rechnern möchte</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Load what the page wants. This is kept for the project that the document lies in, else for the document until the program ends.</source>
        <translation>Laden, was die Seite möchte. Das gilt für das Projekt, in dem das Dokument liegt, sonst für das Dokument, bis das Programm endet.</translation>
    </message>
    <message>
        <source>Allow: %1</source>
        <translation>Erlauben: %1</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Show the page without it</source>
        <translation>Die Seite ohne das zeigen</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Nicht jetzt: %1</translation>
    </message>
    <message>
        <source>This page wants to load from:</source>
        <translation>Diese Seite möchte laden von:</translation>
    </message>
</context>
<context>
    <name>zephira::SearchPage</name>
    <message>
        <source>Find in files:</source>
        <translation>In Dateien suchen:</translation>
    </message>
    <message>
        <source>Find in files</source>
        <translation>In Dateien suchen</translation>
    </message>
    <message>
        <source>Return searches the files of the project folder that the file manager lists</source>
        <translation>Die Eingabetaste durchsucht die Dateien des Projektordners, die der Dateimanager auflistet</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Whole word</source>
        <translation>Ganzes Wort</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>In the replacement, $1 or \1 to \9 insert the groups, \n a line end, \t a tab; \U and \L make what follows capital or small letters, up to \E, \u and \l the next letter</source>
        <translation>Im Ersatztext fügen $1 oder \1 bis \9 die Gruppen ein, \n ein Zeilenende, \t einen Tabulator; \U und \L machen aus dem Folgenden bis \E Groß- oder Kleinbuchstaben, \u und \l aus dem nächsten Buchstaben</translation>
    </message>
    <message>
        <source>Find All</source>
        <translation>Alle suchen</translation>
    </message>
    <message>
        <source>List the matches in the project&apos;s files</source>
        <translation>Die Treffer in den Dateien des Projekts auflisten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>End the search or the replacing; what is listed stays</source>
        <translation>Die Suche oder das Ersetzen beenden; was aufgelistet ist, bleibt</translation>
    </message>
    <message>
        <source>Replace with:</source>
        <translation>Ersetzen durch:</translation>
    </message>
    <message>
        <source>List each match with what it becomes; nothing is changed before you press Replace</source>
        <translation>Jeden Treffer mit dem auflisten, was aus ihm wird; geändert wird erst, wenn Sie Ersetzen drücken</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>What to put in the place of the matches; empty removes them</source>
        <translation>Was an die Stelle der Treffer kommt; leer entfernt sie</translation>
    </message>
    <message>
        <source>Where is searched</source>
        <translation>Wo gesucht wird</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace the matches whose boxes are checked; a copy of each file is kept</source>
        <translation>Die angekreuzten Treffer ersetzen; von jeder Datei wird eine Kopie aufbewahrt</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Double-click a match or press Return to go there</source>
        <translation>Ein Doppelklick auf einen Treffer oder die Eingabetaste führt dorthin</translation>
    </message>
    <message>
        <source>State of the search</source>
        <translation>Stand der Suche</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>There is nothing to search in: set the project folder, or save the document.</source>
        <translation>Es gibt nichts zu durchsuchen: Legen Sie den Projektordner fest, oder speichern Sie das Dokument.</translation>
    </message>
    <message>
        <source>The folder %1 doesn&apos;t exist.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 replaced in the editor, not saved yet</source>
        <translation>%1 im Editor ersetzt, noch nicht gespeichert</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 ersetzt</translation>
    </message>
    <message>
        <source>Replacing: %1 of %2 files…</source>
        <translation>Ersetzen läuft: %1 von %2 Dateien …</translation>
    </message>
    <message>
        <source>It was opened or closed since the search and was left as it is.</source>
        <translation>Sie wurde seit der Suche geöffnet oder geschlossen und blieb, wie sie ist.</translation>
    </message>
    <message>
        <source>It is read-only in the editor.</source>
        <translation>Im Editor ist sie schreibgeschützt.</translation>
    </message>
    <message>
        <source>Replaced: %1 in %2 files.</source>
        <translation>Ersetzt: %1 in %2 Dateien.</translation>
    </message>
    <message>
        <source>Left as they are: %1 files; the list says why.</source>
        <translation>Unverändert: %1 Dateien; die Liste sagt, warum.</translation>
    </message>
    <message>
        <source>Copies of the old files are in %1.</source>
        <translation>Kopien der alten Dateien sind in %1.</translation>
    </message>
    <message>
        <source>No project folder is set</source>
        <translation>Es ist kein Projektordner festgelegt</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
    <message>
        <source>In the document&apos;s folder, %1</source>
        <translation>Im Ordner des Dokuments, %1</translation>
    </message>
    <message>
        <source>%1
Files: %2</source>
        <translation>%1
Dateien: %2</translation>
    </message>
</context>
<context>
    <name>zephira::SearchResults</name>
    <message>
        <source>%1 (1 match)</source>
        <translation>%1 (1 Treffer)</translation>
    </message>
    <message>
        <source>%1 (%2 matches)</source>
        <translation>%1 (%2 Treffer)</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
</context>
<context>
    <name>zephira::SelectingBox</name>
    <message>
        <source>Not a value</source>
        <translation>Kein Wert</translation>
    </message>
</context>
<context>
    <name>zephira::SizePicker</name>
    <message>
        <source>%1 rows, %2 columns</source>
        <translation>%1 Zeilen, %2 Spalten</translation>
    </message>
</context>
<context>
    <name>zephira::TemplateButtons</name>
    <message>
        <source>Keeps the text and only sets the language</source>
        <translation>Behält den Text und legt nur die Sprache fest</translation>
    </message>
</context>
<context>
    <name>zephira::ToolPanel</name>
    <message>
        <source>Panel</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Pages of the panel</source>
        <translation>Seiten des Bereichs</translation>
    </message>
</context>
<context>
    <name>zephira::WrapBar</name>
    <message>
        <source>Wrap with an abbreviation</source>
        <translation>Mit einer Abkürzung umschließen</translation>
    </message>
    <message>
        <source>&amp;Wrap with abbreviation:</source>
        <translation>Mit Abkürzung &amp;umschließen:</translation>
    </message>
    <message>
        <source>Abbreviation to wrap the selection with</source>
        <translation>Abkürzung, mit der die Auswahl umschlossen wird</translation>
    </message>
    <message>
        <source>For example ul&amp;gt;li* for an item of each line. Return wraps, Escape leaves the text as it is.</source>
        <translation>Zum Beispiel ul&amp;gt;li* für einen Eintrag aus jeder Zeile. Die Eingabetaste umschließt, Escape lässt den Text, wie er ist.</translation>
    </message>
    <message>
        <source>What the selection becomes</source>
        <translation>Was aus der Auswahl wird</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Leave the text as it is</source>
        <translation>Den Text lassen, wie er ist</translation>
    </message>
</context>
<context>
    <name>zephira::frmColorSpy</name>
    <message>
        <source>The screen can&apos;t be read.</source>
        <translation>Der Bildschirm kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Click a pixel on the screen.</source>
        <translation>Klicken Sie auf einen Punkt des Bildschirms.</translation>
    </message>
</context>
<context>
    <name>zephira::frmqv</name>
    <message>
        <source>Text of the file</source>
        <translation>Text der Datei</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Texts</name>
    <message>
        <source>Usage: quorvin [LISTING]
       quorvin --search TEXT | --folder FOLDER | --rescan | --manual
Opens the window in which listings are searched. A LISTING has settings and folders of its own.

  --search TEXT    search for TEXT
  --folder FOLDER  search in FOLDER, which is catalogued first if you agree
  --rescan         rescan the local search folders
  --manual         open the manual
  --help           show this and end
  --version        show the version and end

quorvin-cli does the same searches in the terminal.
</source>
        <translation>Aufruf: quorvin [LISTING]
        quorvin --search TEXT | --folder FOLDER | --rescan | --manual
Öffnet das Fenster, in dem Listen durchsucht werden. Eine Liste (LISTING) hat eigene Einstellungen und Ordner.

  --search TEXT    nach TEXT suchen
  --folder FOLDER  in FOLDER suchen; der Ordner wird zuerst katalogisiert, wenn Sie zustimmen
  --rescan         die lokalen Suchordner neu einlesen
  --manual         das Handbuch öffnen
  --help           diese Hilfe zeigen und enden
  --version        die Version zeigen und enden

quorvin-cli sucht im Terminal auf dieselbe Weise.
</translation>
    </message>
    <message>
        <source>Run-time error: Out of memory</source>
        <translation>Laufzeitfehler: Nicht genügend Speicher</translation>
    </message>
    <message>
        <source>Run-time error: %1</source>
        <translation>Laufzeitfehler: %1</translation>
    </message>
    <message>
        <source>This happened while %1.</source>
        <translation>Das geschah bei: %1.</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Versuchen Sie: %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>the option %1 needs a value</source>
        <translation>der Option %1 fehlt ein Wert</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>handling an event of the window system</source>
        <translation>Verarbeitung eines Ereignisses des Fenstersystems</translation>
    </message>
    <message>
        <source>The rescan has ended</source>
        <translation>Das Einlesen ist beendet</translation>
    </message>
    <message>
        <source>editing the local folders</source>
        <translation>Bearbeiten der lokalen Ordner</translation>
    </message>
    <message>
        <source>editing the offline lists</source>
        <translation>Bearbeiten der Offline-Listen</translation>
    </message>
    <message>
        <source>refreshing the local lists</source>
        <translation>Auffrischen der lokalen Listen</translation>
    </message>
    <message>
        <source>showing the listing history</source>
        <translation>Anzeigen des Listenverlaufs</translation>
    </message>
    <message>
        <source>exporting hits</source>
        <translation>Exportieren von Treffern</translation>
    </message>
    <message>
        <source>editing the options</source>
        <translation>Bearbeiten der Optionen</translation>
    </message>
    <message>
        <source>sharing lists</source>
        <translation>Freigeben von Listen</translation>
    </message>
    <message>
        <source>getting lists from a peer</source>
        <translation>Holen von Listen einer Gegenstelle</translation>
    </message>
    <message>
        <source>opening the help</source>
        <translation>Öffnen der Hilfe</translation>
    </message>
    <message>
        <source>showing the about window</source>
        <translation>Anzeigen des Fensters „Über“</translation>
    </message>
    <message>
        <source>No hit has these words.

Esc closes the filter and shows all hits.</source>
        <translation>Kein Treffer enthält diese Wörter.

Esc schließt den Filter und zeigt alle Treffer.</translation>
    </message>
    <message>
        <source>There is nothing to search yet.</source>
        <translation>Es gibt noch nichts zu durchsuchen.</translation>
    </message>
    <message>
        <source>saving. The program stays open; close it again to leave</source>
        <translation>Speichern. Das Programm bleibt geöffnet; schließen Sie es noch einmal, um es zu verlassen</translation>
    </message>
    <message>
        <source>Search text</source>
        <translation>Suchtext</translation>
    </message>
    <message>
        <source>Words from the name or folder, for example: rock live</source>
        <translation>Wörter aus Name oder Ordner, zum Beispiel: rock live</translation>
    </message>
    <message>
        <source>Entries that contain more than this share of the words are shown</source>
        <translation>Gezeigt werden Einträge, die mehr als diesen Anteil der Wörter enthalten</translation>
    </message>
    <message>
        <source>Desired match in percent</source>
        <translation>Gewünschter Anteil in Prozent</translation>
    </message>
    <message>
        <source>Search While &amp;Typing</source>
        <translation>Beim Ti&amp;ppen suchen</translation>
    </message>
    <message>
        <source>&amp;Keep Search History</source>
        <translation>Such&amp;verlauf behalten</translation>
    </message>
    <message>
        <source>Clear Search &amp;History</source>
        <translation>Suchverlauf &amp;löschen</translation>
    </message>
    <message>
        <source>Line below the menu</source>
        <translation>Linie unter dem Menü</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Web Update?</source>
        <translation>Web-Update?</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Only hits with all of these words in the name or folder are shown</source>
        <translation>Nur Treffer, die alle diese Wörter im Namen oder Ordner haben, werden gezeigt</translation>
    </message>
    <message>
        <source>Words that the name or folder must have</source>
        <translation>Wörter, die Name oder Ordner enthalten müssen</translation>
    </message>
    <message>
        <source>&amp;Search for:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>&amp;Match %:</source>
        <translation>A&amp;nteil %:</translation>
    </message>
    <message>
        <source>Number of entries found</source>
        <translation>Anzahl gefundener Einträge</translation>
    </message>
    <message>
        <source>Number of entries searched</source>
        <translation>Anzahl durchsuchter Einträge</translation>
    </message>
    <message>
        <source>Found:</source>
        <translation>Gefunden:</translation>
    </message>
    <message>
        <source>Searched:</source>
        <translation>Durchsucht:</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>Programmversion</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Number of hits shown</source>
        <translation>Anzahl gezeigter Treffer</translation>
    </message>
    <message>
        <source>Main menu</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Add/Edit Local Folder To Search List</source>
        <translation>&amp;Lokale Ordner hinzufügen/bearbeiten</translation>
    </message>
    <message>
        <source>Add/Edit Offline List files</source>
        <translation>Offline-Listen hinzufügen/bearbeiten</translation>
    </message>
    <message>
        <source>Rescan Local Search Folders</source>
        <translation>Lokale Suchordner neu einlesen</translation>
    </message>
    <message>
        <source>Listing &amp;History...</source>
        <translation>Listen&amp;verlauf...</translation>
    </message>
    <message>
        <source>&amp;Export Hits...</source>
        <translation>Treffer e&amp;xportieren...</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>H&amp;its</source>
        <translation>&amp;Treffer</translation>
    </message>
    <message>
        <source>&amp;Peers</source>
        <translation>&amp;Gegenstellen</translation>
    </message>
    <message>
        <source>&amp;Share My Lists</source>
        <translation>Eigene Listen &amp;freigeben</translation>
    </message>
    <message>
        <source>&amp;Get Lists From Peer...</source>
        <translation>Listen von Gegenstelle &amp;holen...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Program &amp;Usage</source>
        <translation>Programm&amp;bedienung</translation>
    </message>
    <message>
        <source>&amp;Release Information</source>
        <translation>Informationen zur &amp;Version</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Übe&amp;r</translation>
    </message>
    <message>
        <source>%1 hits are selected. At most %2 can be copied at once.</source>
        <translation>%1 Treffer sind ausgewählt. Höchstens %2 können auf einmal kopiert werden.</translation>
    </message>
    <message>
        <source>Copying was stopped. The clipboard holds what it held before.</source>
        <translation>Das Kopieren wurde angehalten. Die Zwischenablage enthält, was sie vorher enthielt.</translation>
    </message>
    <message>
        <source>Copying was given up, since a new search has replaced the hits. The clipboard holds what it held before.</source>
        <translation>Das Kopieren wurde aufgegeben, weil eine neue Suche die Treffer ersetzt hat. Die Zwischenablage enthält, was sie vorher enthielt.</translation>
    </message>
    <message>
        <source>For these, the path in the catalogue was copied.</source>
        <translation>Für diese wurde der Pfad im Katalog kopiert.</translation>
    </message>
    <message>
        <source>doing what the program was started for</source>
        <translation>Ausführen dessen, wofür das Programm gestartet wurde</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Page with its own search box (*.html)</source>
        <translation>Seite mit eigenem Suchfeld (*.html)</translation>
    </message>
    <message>
        <source>Listing that can be searched (*.txt)</source>
        <translation>Liste, die durchsucht werden kann (*.txt)</translation>
    </message>
    <message>
        <source>There are no hits to export.</source>
        <translation>Es gibt keine Treffer zum Exportieren.</translation>
    </message>
    <message>
        <source>Export Hits</source>
        <translation>Treffer exportieren</translation>
    </message>
    <message>
        <source>The ending of the name says what is written: .csv, .html or .txt. %1 has none of these.</source>
        <translation>Die Endung des Namens bestimmt, was geschrieben wird: .csv, .html oder .txt. %1 hat keine davon.</translation>
    </message>
    <message>
        <source>%1 belongs to what is searched. Please choose another name.</source>
        <translation>%1 gehört zu dem, was durchsucht wird. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>exporting hits to %1</source>
        <translation>Exportieren von Treffern nach %1</translation>
    </message>
    <message>
        <source>%1 hits were written to %2.</source>
        <translation>%1 Treffer wurden nach %2 geschrieben.</translation>
    </message>
    <message>
        <source>%1 of %2 hits</source>
        <translation>%1 von %2 Treffern</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>Der Export wurde angehalten. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>The export was given up, since a new search has replaced the hits. Nothing was written.</source>
        <translation>Der Export wurde aufgegeben, weil eine neue Suche die Treffer ersetzt hat. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Hit</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>O&amp;pen</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Enthaltenden &amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Preview Image</source>
        <translation>Bildvorschau</translation>
    </message>
    <message>
        <source>Enqueue (Winamp)</source>
        <translation>In die Warteschlange (Winamp)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Names</source>
        <translation>&amp;Namen kopieren</translation>
    </message>
    <message>
        <source>Copy Full P&amp;ath</source>
        <translation>Ganzen &amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>&amp;Export Selected...</source>
        <translation>Auswahl e&amp;xportieren...</translation>
    </message>
    <message>
        <source>&amp;Which Disk?</source>
        <translation>&amp;Welcher Datenträger?</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>At most %1 hits can be dragged at once. Nothing was dragged.</source>
        <translation>Höchstens %1 Treffer können auf einmal gezogen werden. Nichts wurde gezogen.</translation>
    </message>
    <message>
        <source>The picture preview is not available.</source>
        <translation>Die Bildvorschau ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>showing &quot;%1&quot;</source>
        <translation>Anzeigen von „%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits are selected. Open all of them?</source>
        <translation>
            <numerusform>%1 Treffer ist ausgewählt. Soll er geöffnet werden?</numerusform>
            <numerusform>%1 Treffer sind ausgewählt. Sollen alle geöffnet werden?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 hits are selected. At most %2 can be opened at once.</source>
        <translation>
            <numerusform>%1 Treffer ist ausgewählt. Höchstens %2 können auf einmal geöffnet werden.</numerusform>
            <numerusform>%1 Treffer sind ausgewählt. Höchstens %2 können auf einmal geöffnet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>searching for &quot;%1&quot;</source>
        <translation>Suchen nach „%1“</translation>
    </message>
    <message>
        <source>not searched: more than %1 words</source>
        <translation>nicht gesucht: mehr als %1 Wörter</translation>
    </message>
    <message>
        <source>%1 folder was added.</source>
        <translation>%1 Ordner wurde hinzugefügt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders were added.</source>
        <translation>
            <numerusform>%1 Ordner wurde hinzugefügt.</numerusform>
            <numerusform>%1 Ordner wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 listing was added.</source>
        <translation>%1 Liste wurde hinzugefügt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings were added.</source>
        <translation>
            <numerusform>%1 Liste wurde hinzugefügt.</numerusform>
            <numerusform>%1 Listen wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Catalogue folders of your own</source>
        <translation>Eigene Ordner &amp;katalogisieren</translation>
    </message>
    <message>
        <source>Search &amp;listings that you have</source>
        <translation>Vorhandene &amp;Listen durchsuchen</translation>
    </message>
    <message>
        <source>adding what was dropped</source>
        <translation>Hinzufügen dessen, was abgelegt wurde</translation>
    </message>
    <message>
        <source>File, %1</source>
        <translation>Datei, %1</translation>
    </message>
    <message>
        <source>%1 is no folder that can be read.</source>
        <translation>%1 ist kein Ordner, der gelesen werden kann.</translation>
    </message>
    <message>
        <source>%1 is not catalogued yet.<byte value="xd"/>
<byte value="xd"/>
Add it to the local search folders, and rescan them?</source>
        <translation>%1 ist noch nicht katalogisiert.<byte value="xd"/>
<byte value="xd"/>
Soll der Ordner zu den lokalen Suchordnern hinzugefügt und sollen diese neu eingelesen werden?</translation>
    </message>
    <message>
        <source>Rescan Local Search Locations?</source>
        <translation>Lokale Suchorte neu einlesen?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Earlier searches</source>
        <translation>Frühere Suchen</translation>
    </message>
    <message>
        <source>Earlier searches (Down)</source>
        <translation>Frühere Suchen (Abwärtspfeil)</translation>
    </message>
    <message>
        <source>Right adds &quot;%1&quot;</source>
        <translation>Pfeil nach rechts ergänzt „%1“</translation>
    </message>
    <message>
        <source>&amp;Match</source>
        <translation>An&amp;teil</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Datenträger</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>Dat&amp;um</translation>
    </message>
    <message>
        <source>Sort by %1</source>
        <translation>Nach %1 sortieren</translation>
    </message>
    <message>
        <source>&amp;Filter Hits</source>
        <translation>Treffer &amp;filtern</translation>
    </message>
    <message>
        <source>F&amp;ound Order</source>
        <translation>&amp;Reihenfolge der Suche</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>Spalten &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>%1 (descending)</source>
        <translation>%1 (absteigend)</translation>
    </message>
    <message>
        <source>%1 (ascending)</source>
        <translation>%1 (aufsteigend)</translation>
    </message>
    <message>
        <source>%1, with Qt %2</source>
        <translation>%1, mit Qt %2</translation>
    </message>
    <message>
        <source>loading the picture %1</source>
        <translation>Laden des Bildes %1</translation>
    </message>
    <message>
        <source>The request to stop an earlier rescan is still in force. With it, most folders would be left out of the listings.<byte value="xd"/>
<byte value="xd"/>
Forget the request, and rescan everything?</source>
        <translation>Die Aufforderung, ein früheres Einlesen anzuhalten, gilt noch. Mit ihr würden die meisten Ordner in den Listen fehlen.<byte value="xd"/>
<byte value="xd"/>
Soll die Aufforderung vergessen und alles neu eingelesen werden?</translation>
    </message>
    <message>
        <source>restoring the listing %1</source>
        <translation>Wiederherstellen der Liste %1</translation>
    </message>
    <message>
        <source>updating from the web</source>
        <translation>Aktualisieren aus dem Web</translation>
    </message>
    <message>
        <source>The update was cancelled. It can be started again when the program is started again.</source>
        <translation>Das Update wurde abgebrochen. Es kann nach einem neuen Start des Programms wieder gestartet werden.</translation>
    </message>
    <message>
        <source>To use the web update, fill in the web server and the archive in File, Options, and start the program again.</source>
        <translation>Um das Web-Update zu benutzen, tragen Sie unter Datei, Optionen den Webserver und das Archiv ein und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>Get Lists From Peer</source>
        <translation>Listen von Gegenstelle holen</translation>
    </message>
    <message>
        <source>&amp;Peer (host or host:port):</source>
        <translation>&amp;Gegenstelle (Host oder Host:Port):</translation>
    </message>
    <message>
        <source>saving the settings</source>
        <translation>Speichern der Einstellungen</translation>
    </message>
    <message>
        <source>saving the window&apos;s place</source>
        <translation>Speichern des Fensterplatzes</translation>
    </message>
    <message>
        <source>saving the online sources</source>
        <translation>Speichern der Online-Quellen</translation>
    </message>
    <message>
        <source>saving the offline sources</source>
        <translation>Speichern der Offline-Quellen</translation>
    </message>
    <message>
        <source>Statup error: %1 %2</source>
        <translation>Fehler beim Start: %1&#xa0;%2</translation>
    </message>
    <message>
        <source>Could not find file specified on command line. Using default file.</source>
        <translation>Die in der Befehlszeile angegebene Datei wurde nicht gefunden. Die Standarddatei wird benutzt.</translation>
    </message>
    <message>
        <source>%1 listing</source>
        <translation>%1 Liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings</source>
        <translation>
            <numerusform>%1 Liste</numerusform>
            <numerusform>%1 Listen</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped after %1 of %2</source>
        <translation>angehalten nach %1 von %2</translation>
    </message>
    <message>
        <source>%1 listing missing</source>
        <translation>%1 Liste fehlt</translation>
    </message>
    <message numerus="yes">
        <source>%1 listings missing</source>
        <translation>
            <numerusform>%1 Liste fehlt</numerusform>
            <numerusform>%1 Listen fehlen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was searched: %1.</source>
        <translation>Nichts wurde durchsucht: %1.</translation>
    </message>
    <message>
        <source>No file found: %1.</source>
        <translation>Keine Datei gefunden: %1.</translation>
    </message>
    <message>
        <source>No file found in %1%2.</source>
        <translation>Keine Datei gefunden in %1%2.</translation>
    </message>
    <message>
        <source>all %1 of them</source>
        <translation>alle %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>More than %1% of the words means %2; with %3, %4 is enough.</source>
        <translation>Mehr als %1&#xa0;% der Wörter heißt %2; bei %3 genügen %4.</translation>
    </message>
    <message>
        <source>%1 hit</source>
        <translation>%1 Treffer</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits</source>
        <translation>
            <numerusform>%1 Treffer</numerusform>
            <numerusform>%1 Treffer</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 gezeigt</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>without the main data file offline lists are not searched</source>
        <translation>ohne die Hauptdatei werden Offline-Listen nicht durchsucht</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>%1 entries</source>
        <translation>
            <numerusform>%1 Eintrag</numerusform>
            <numerusform>%1 Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 new</source>
        <translation>%1 neu</translation>
    </message>
    <message>
        <source>%1 gone</source>
        <translation>%1 weg</translation>
    </message>
    <message>
        <source>%1 drive missing</source>
        <translation>%1 Laufwerk fehlt</translation>
    </message>
    <message numerus="yes">
        <source>%1 drives missing</source>
        <translation>
            <numerusform>%1 Laufwerk fehlt</numerusform>
            <numerusform>%1 Laufwerke fehlen</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1 of %2 copied so far; Esc stops</source>
        <translation>bisher %1 von %2 kopiert; Esc hält an</translation>
    </message>
    <message>
        <source>%1 were copied.</source>
        <translation>%1 kopiert.</translation>
    </message>
    <message>
        <source>%1 of %2 could not be found on a connected drive.</source>
        <translation>%1 von %2 waren auf keinem verbundenen Laufwerk zu finden.</translation>
    </message>
    <message>
        <source>%1 are no longer selected: they are scattered too widely now</source>
        <translation>%1 nicht mehr ausgewählt: sie liegen jetzt zu weit verstreut</translation>
    </message>
    <message>
        <source>No file holds more than 100% of the words; 99 asks for all of them.</source>
        <translation>Keine Datei enthält mehr als 100&#xa0;% der Wörter; 99 verlangt alle.</translation>
    </message>
    <message>
        <source>Without the main data file the offline lists are not searched.</source>
        <translation>Ohne die Hauptdatei werden die Offline-Listen nicht durchsucht.</translation>
    </message>
    <message>
        <source>Folders are written with \: try %1</source>
        <translation>Ordner werden mit \ geschrieben: versuchen Sie %1</translation>
    </message>
    <message>
        <source>Version %1.%2.%3</source>
        <translation>Version %1.%2.%3</translation>
    </message>
    <message>
        <source>Text file / folder list searching utility</source>
        <translation>Durchsucht Text-, Datei- und Ordnerlisten</translation>
    </message>
    <message>
        <source>its content cannot be unpacked</source>
        <translation>sein Inhalt kann nicht entpackt werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is damaged: %2.</source>
        <translation>„%1“ im Archiv ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>it is longer than it should be</source>
        <translation>der Eintrag ist länger, als er sein sollte</translation>
    </message>
    <message>
        <source>it is shorter than it should be</source>
        <translation>der Eintrag ist kürzer, als er sein sollte</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>die Prüfsumme stimmt nicht</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>der Eintrag kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Nothing was unpacked.</source>
        <translation>Nichts wurde entpackt.</translation>
    </message>
    <message>
        <source>The archive has an entry whose name %1: &quot;%2&quot;.</source>
        <translation>Das Archiv hat einen Eintrag, dessen Name %1: „%2“.</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>leer ist</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>Steuerzeichen enthält</translation>
    </message>
    <message>
        <source>is an absolute path</source>
        <translation>ein absoluter Pfad ist</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>aus dem Ordner hinausführt</translation>
    </message>
    <message>
        <source>has a drive</source>
        <translation>ein Laufwerk nennt</translation>
    </message>
    <message>
        <source>is too long</source>
        <translation>zu lang ist</translation>
    </message>
    <message>
        <source>The archive has an entry that is more than %1 folders deep: &quot;%2&quot;.</source>
        <translation>Das Archiv hat einen Eintrag, der mehr als %1 Ordner tief liegt: „%2“.</translation>
    </message>
    <message>
        <source>The archive holds a link: &quot;%1&quot;.</source>
        <translation>Das Archiv enthält eine Verknüpfung: „%1“.</translation>
    </message>
    <message>
        <source>The archive holds a device or a socket: &quot;%1&quot;.</source>
        <translation>Das Archiv enthält ein Gerät oder einen Socket: „%1“.</translation>
    </message>
    <message>
        <source>The archive holds a folder with content: &quot;%1&quot;.</source>
        <translation>Das Archiv enthält einen Ordner mit Inhalt: „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is encrypted.</source>
        <translation>„%1“ im Archiv ist verschlüsselt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the archive is packed in a way that this program does not know.</source>
        <translation>„%1“ im Archiv ist auf eine Art gepackt, die dieses Programm nicht kennt.</translation>
    </message>
    <message>
        <source>In the archive a file and a folder have the same name: &quot;%1&quot;.</source>
        <translation>Im Archiv haben eine Datei und ein Ordner denselben Namen: „%1“.</translation>
    </message>
    <message>
        <source>The archive holds two entries of the same name: &quot;%1&quot;.</source>
        <translation>Das Archiv enthält zwei Einträge mit demselben Namen: „%1“.</translation>
    </message>
    <message>
        <source>The archive holds more than %1 files and folders.</source>
        <translation>Das Archiv enthält mehr als %1 Dateien und Ordner.</translation>
    </message>
    <message>
        <source>The archive would unpack to more than %1.</source>
        <translation>Das Archiv wäre entpackt größer als %1.</translation>
    </message>
    <message>
        <source>The entries of the archive overlap; it was made to do harm.</source>
        <translation>Die Einträge des Archivs überlappen sich; es wurde gemacht, um Schaden anzurichten.</translation>
    </message>
    <message>
        <source>The archive holds more than %1 entries.</source>
        <translation>Das Archiv enthält mehr als %1 Einträge.</translation>
    </message>
    <message>
        <source>The archive has a file without a name: &quot;%1&quot;.</source>
        <translation>Das Archiv hat eine Datei ohne Namen: „%1“.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; is damaged: its parts contradict each other.</source>
        <translation>Das Archiv „%1“ ist beschädigt: seine Teile widersprechen sich.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds two entries of the same name.</source>
        <translation>Das Archiv „%1“ enthält zwei Einträge mit demselben Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no zip archive, or its end is missing.</source>
        <translation>„%1“ ist kein Zip-Archiv, oder sein Ende fehlt.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds more than %2 entries.</source>
        <translation>Das Archiv „%1“ enthält mehr als %2 Einträge.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only a part of an archive of several files.</source>
        <translation>„%1“ ist nur ein Teil eines Archivs aus mehreren Dateien.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; cannot be read.</source>
        <translation>Das Archiv „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>One file before it was unpacked, nothing else was changed.</source>
        <translation>Eine Datei davor wurde entpackt, sonst wurde nichts verändert.</translation>
    </message>
    <message numerus="yes">
        <source>The %1 files before it were unpacked, nothing else was changed.</source>
        <translation>
            <numerusform>Die %1 Datei davor wurde entpackt, sonst wurde nichts verändert.</numerusform>
            <numerusform>Die %1 Dateien davor wurden entpackt, sonst wurde nichts verändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose Folders to Catalogue</source>
        <translation>Ordner zum Katalogisieren wählen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Local Data Folder:</source>
        <translation>Lokaler Datenordner:</translation>
    </message>
    <message>
        <source>Browse for the local data folder</source>
        <translation>Den lokalen Datenordner wählen</translation>
    </message>
    <message>
        <source>List File:</source>
        <translation>Listendatei:</translation>
    </message>
    <message>
        <source>Browse for the list file</source>
        <translation>Die Listendatei wählen</translation>
    </message>
    <message>
        <source>Update Archive Name:</source>
        <translation>Name des Update-Archivs:</translation>
    </message>
    <message>
        <source>Update Server:</source>
        <translation>Update-Server:</translation>
    </message>
    <message>
        <source>First Run Date:</source>
        <translation>Datum des ersten Starts:</translation>
    </message>
    <message>
        <source>Nickname:</source>
        <translation>Spitzname:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Local Data Folder</source>
        <translation>Lokaler Datenordner</translation>
    </message>
    <message>
        <source>A list of sources cannot keep a double quote, so &apos; takes its place.</source>
        <translation>Eine Quellenliste kann kein doppeltes Anführungszeichen aufnehmen, deshalb steht &apos; an seiner Stelle.</translation>
    </message>
    <message>
        <source>Local File Search Locations</source>
        <translation>Lokale Suchorte</translation>
    </message>
    <message>
        <source>Offline Search List files</source>
        <translation>Offline-Listendateien</translation>
    </message>
    <message>
        <source>Path to List file</source>
        <translation>Pfad der Listendatei</translation>
    </message>
    <message>
        <source>Add &amp;Files...</source>
        <translation>&amp;Dateien hinzufügen...</translation>
    </message>
    <message>
        <source>Pick listing files, which are in the list at once</source>
        <translation>Listendateien wählen, die sofort in der Liste stehen</translation>
    </message>
    <message>
        <source>Not in the list yet: Add puts the file there.</source>
        <translation>Noch nicht in der Liste: „Hinzufügen“ nimmt die Datei auf.</translation>
    </message>
    <message>
        <source>Not in the list yet: Add puts the folder there.</source>
        <translation>Noch nicht in der Liste: „Hinzufügen“ nimmt den Ordner auf.</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Folders are added in File, Add/Edit Local Folder To Search List.</source>
        <translation>Ordner fügen Sie unter Datei, Lokale Ordner hinzufügen/bearbeiten hinzu.</translation>
    </message>
    <message>
        <source>Listing files are added in File, Add/Edit Offline List files.</source>
        <translation>Listendateien fügen Sie unter Datei, Offline-Listen hinzufügen/bearbeiten hinzu.</translation>
    </message>
    <message>
        <source>Browse for a File Location Path</source>
        <translation>Den Pfad eines Suchorts wählen</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Suchorte</translation>
    </message>
    <message>
        <source>Move Selected Up</source>
        <translation>Auswahl nach oben</translation>
    </message>
    <message>
        <source>Move Selected Down</source>
        <translation>Auswahl nach unten</translation>
    </message>
    <message>
        <source>Delete Selected</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add Fol&amp;ders...</source>
        <translation>&amp;Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Pick folders, which are in the list at once</source>
        <translation>Ordner wählen, die sofort in der Liste stehen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>The Join Date / Time format can not be understood, check the format.</source>
        <translation>Das Format von Datum und Uhrzeit des ersten Starts ist nicht verständlich; bitte prüfen Sie es.</translation>
    </message>
    <message>
        <source>The Local Data Folder path is invalid.<byte value="xd"/>
<byte value="xd"/>
Please Pick a valid path!</source>
        <translation>Der Pfad des lokalen Datenordners ist ungültig.<byte value="xd"/>
<byte value="xd"/>
Bitte wählen Sie einen gültigen Pfad!</translation>
    </message>
    <message>
        <source>today</source>
        <translation>von heute</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>von gestern</translation>
    </message>
    <message numerus="yes">
        <source>%1 days old</source>
        <translation>
            <numerusform>%1 Tag alt</numerusform>
            <numerusform>%1 Tage alt</numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>vom %1</translation>
    </message>
    <message>
        <source>The file was last changed on %1.</source>
        <translation>Die Datei wurde zuletzt am %1 geändert.</translation>
    </message>
    <message>
        <source>The file has %1 and was last changed on %2.</source>
        <translation>Die Datei hat %1 und wurde zuletzt am %2 geändert.</translation>
    </message>
    <message>
        <source>Its listing was last changed on %1.</source>
        <translation>Ihre Liste wurde zuletzt am %1 geändert.</translation>
    </message>
    <message>
        <source>Its listing has %1 and was last changed on %2.</source>
        <translation>Ihre Liste hat %1 und wurde zuletzt am %2 geändert.</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>nicht da</translation>
    </message>
    <message>
        <source>not listed yet</source>
        <translation>noch nicht aufgelistet</translation>
    </message>
    <message>
        <source>The file is not there.</source>
        <translation>Die Datei ist nicht da.</translation>
    </message>
    <message>
        <source>The folder is there.</source>
        <translation>Der Ordner ist da.</translation>
    </message>
    <message>
        <source>The folder is not there.</source>
        <translation>Der Ordner ist nicht da.</translation>
    </message>
    <message>
        <source>It has no listing yet; a rescan makes it.</source>
        <translation>Er hat noch keine Liste; ein neues Einlesen macht sie.</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Prozeduraufruf oder ungültiges Argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch Null</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Ungültiger Dateiname oder ungültige Dateinummer</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Geräte-E/A-Fehler</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Eingabe nach Dateiende</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad/Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Unknown fault</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>%1 was cut while it was read</source>
        <translation>%1 wurde gekürzt, während die Datei gelesen wurde</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>Quorvin Utility Help</source>
        <translation>Hilfe zu Quorvin Utility</translation>
    </message>
    <message>
        <source>Release Information</source>
        <translation>Versionsinformationen</translation>
    </message>
    <message>
        <source>Program Usage</source>
        <translation>Programmbedienung</translation>
    </message>
    <message>
        <source>%1 opens after this window is closed.</source>
        <translation>%1 öffnet sich, sobald dieses Fenster geschlossen ist.</translation>
    </message>
    <message>
        <source>Loading %1 (Esc stops)</source>
        <translation>%1 wird geladen (Esc hält an)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Home: program usage</source>
        <translation>Anfang: Programmbedienung</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the index of the help</source>
        <translation>Das Stichwortverzeichnis der Hilfe durchsuchen</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Das Laden anhalten</translation>
    </message>
    <message>
        <source>More buttons</source>
        <translation>Weitere Schaltflächen</translation>
    </message>
    <message>
        <source>Help toolbar</source>
        <translation>Werkzeugleiste der Hilfe</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Visited addresses</source>
        <translation>Besuchte Adressen</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;Open it now</source>
        <translation>&amp;Jetzt öffnen</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Scroll the page down</source>
        <translation>Die Seite nach unten rollen</translation>
    </message>
    <message>
        <source>Scroll the page sideways</source>
        <translation>Die Seite zur Seite rollen</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 2 or later</source>
        <translation>Freie Software unter der GNU General Public License, Version 2 oder später</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Logo: a lens over a list</source>
        <translation>Logo: eine Lupe über einer Liste</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Runs on %1</source>
        <translation>Läuft auf %1</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>Find on this &amp;page:</source>
        <translation>Auf dieser &amp;Seite suchen:</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Voriges</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>Vorige Fundstelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächstes</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>Nächste Fundstelle (F3)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Die Suchleiste schließen (Esc)</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>Von unten weitergesucht</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>Von oben weitergesucht</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Nicht auf dieser Seite</translation>
    </message>
    <message>
        <source>The page could not be fetched</source>
        <translation>Die Seite konnte nicht geholt werden</translation>
    </message>
    <message>
        <source>Check the address and your connection, then choose Refresh (F5) to try again.</source>
        <translation>Prüfen Sie die Adresse und Ihre Verbindung, und wählen Sie dann Neu laden (F5), um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>This help page is missing</source>
        <translation>Diese Hilfeseite fehlt</translation>
    </message>
    <message>
        <source>The help pages come with the program and are kept in its folder. If they have been moved or removed, install the program again.</source>
        <translation>Die Hilfeseiten gehören zum Programm und liegen in seinem Ordner. Wurden sie verschoben oder entfernt, installieren Sie das Programm noch einmal.</translation>
    </message>
    <message>
        <source>This address cannot be opened here</source>
        <translation>Diese Adresse kann hier nicht geöffnet werden</translation>
    </message>
    <message>
        <source>This window shows the program&apos;s help pages and plain web pages (http and https). It opens no other files.</source>
        <translation>Dieses Fenster zeigt die Hilfeseiten des Programms und einfache Webseiten (http und https). Andere Dateien öffnet es nicht.</translation>
    </message>
    <message>
        <source>The server answered: %1 %2</source>
        <translation>Der Server hat geantwortet: %1&#xa0;%2</translation>
    </message>
    <message>
        <source>The server stopped sending data.</source>
        <translation>Der Server sendet keine Daten mehr.</translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Das Laden der Seite dauerte zu lange.</translation>
    </message>
    <message>
        <source>data of an unknown type</source>
        <translation>Daten unbekannter Art</translation>
    </message>
    <message>
        <source>The server sent %1; only text pages can be shown here.</source>
        <translation>Der Server hat %1 gesendet; hier können nur Textseiten gezeigt werden.</translation>
    </message>
    <message>
        <source>The page is larger than %1.</source>
        <translation>Die Seite ist größer als %1.</translation>
    </message>
    <message>
        <source>Earlier versions</source>
        <translation>Frühere Fassungen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>The listing history cannot be read: %1</source>
        <translation>Der Listenverlauf kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Listing History</source>
        <translation>Listenverlauf</translation>
    </message>
    <message>
        <source>Listing</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Listings that have earlier versions</source>
        <translation>Listen, die frühere Fassungen haben</translation>
    </message>
    <message>
        <source>&amp;Listing:</source>
        <translation>&amp;Liste:</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>There are no earlier versions yet. One is kept whenever a rescan or an update replaces a listing by another.</source>
        <translation>Es gibt noch keine früheren Fassungen. Immer wenn ein Einlesen oder ein Update eine Liste durch eine andere ersetzt, wird eine aufbewahrt.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Jetzt: %1</translation>
    </message>
    <message>
        <source>The listing itself is not there now.</source>
        <translation>Die Liste selbst ist jetzt nicht da.</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 entries, %3, complete</source>
        <translation>
            <numerusform>%1, %2 Eintrag, %3, vollständig</numerusform>
            <numerusform>%1, %2 Einträge, %3, vollständig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 entries, %3, incomplete</source>
        <translation>
            <numerusform>%1, %2 Eintrag, %3, unvollständig</numerusform>
            <numerusform>%1, %2 Einträge, %3, unvollständig</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 differs from a version that is missing</source>
        <translation>%1 unterscheidet sich von einer Fassung, die fehlt</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>Es ist nicht genügend Speicher da</translation>
    </message>
    <message>
        <source>The listing cannot be restored now: a refresh is running.</source>
        <translation>Die Liste kann jetzt nicht wiederhergestellt werden: die Listen werden gerade erneuert.</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>The listing could not be packed: %1</source>
        <translation>Die Liste konnte nicht gepackt werden: %1</translation>
    </message>
    <message>
        <source>the listing changed while it was read</source>
        <translation>die Liste hat sich geändert, während sie gelesen wurde</translation>
    </message>
    <message>
        <source>No audio player was found. Install one of Audacious, VLC, Strawberry, Clementine, DeaDBeeF or Rhythmbox, or set EnqueueCommand in the settings to the command of your player.</source>
        <translation>Es wurde kein Audioprogramm gefunden. Installieren Sie Audacious, VLC, Strawberry, Clementine, DeaDBeeF oder Rhythmbox, oder tragen Sie bei EnqueueCommand in den Einstellungen den Befehl Ihres Audioprogramms ein.</translation>
    </message>
    <message>
        <source>The audio player could not be started. Please check the command in the setting EnqueueCommand.</source>
        <translation>Das Audioprogramm konnte nicht gestartet werden. Bitte prüfen Sie den Befehl in der Einstellung EnqueueCommand.</translation>
    </message>
    <message>
        <source>Bad file name Launching: %1<byte value="xd"/>
The file may have been renamed, deleted or moved. Try rescanning the file lists.</source>
        <translation>Ungültiger Dateiname beim Öffnen: %1<byte value="xd"/>
Die Datei wurde vielleicht umbenannt, gelöscht oder verschoben. Lesen Sie die Dateilisten neu ein.</translation>
    </message>
    <message>
        <source>Folder of your own</source>
        <translation>Eigener Ordner</translation>
    </message>
    <message>
        <source>Main data file</source>
        <translation>Hauptdatei</translation>
    </message>
    <message>
        <source>Offline listing</source>
        <translation>Offline-Liste</translation>
    </message>
    <message>
        <source>Not known: only folders of your own can be reached</source>
        <translation>Nicht bekannt: nur eigene Ordner sind erreichbar</translation>
    </message>
    <message>
        <source>Not found on a connected drive</source>
        <translation>Auf keinem verbundenen Laufwerk gefunden</translation>
    </message>
    <message>
        <source>Is there</source>
        <translation>Ist da</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Words found</source>
        <translation>Gefundene Wörter</translation>
    </message>
    <message>
        <source>1 of 1 word</source>
        <translation>1 von 1 Wort</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size in bytes</source>
        <translation>Größe in Bytes</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>The file is on a connected drive:</source>
        <translation>Die Datei ist auf einem verbundenen Laufwerk:</translation>
    </message>
    <message>
        <source>In the catalogue: %1</source>
        <translation>Im Katalog: %1</translation>
    </message>
    <message>
        <source>Listing: %1</source>
        <translation>Liste: %1</translation>
    </message>
    <message>
        <source>The file is on the volume &quot;%1&quot;. Insert that disk to get at it.</source>
        <translation>Die Datei ist auf dem Datenträger „%1“. Legen Sie ihn ein, um an sie zu gelangen.</translation>
    </message>
    <message>
        <source>Catalogued from: %1</source>
        <translation>Katalogisiert von: %1</translation>
    </message>
    <message>
        <source>The folder of &quot;%1&quot; is connected, but the file is not there any more. It may have been renamed, moved or deleted.</source>
        <translation>Der Ordner von „%1“ ist verbunden, aber die Datei ist nicht mehr da. Sie wurde vielleicht umbenannt, verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>The file is on the volume &quot;%1&quot;, which is not connected. Insert or connect it to get at the file.</source>
        <translation>Die Datei ist auf dem Datenträger „%1“, der nicht verbunden ist. Legen Sie ihn ein oder verbinden Sie ihn, um an sie zu gelangen.</translation>
    </message>
    <message>
        <source>Sorted by %1, ascending</source>
        <translation>Nach %1 sortiert, aufsteigend</translation>
    </message>
    <message>
        <source>Sorted by %1, descending</source>
        <translation>Nach %1 sortiert, absteigend</translation>
    </message>
    <message>
        <source>From the listing of an online source</source>
        <translation>Aus der Liste einer Online-Quelle</translation>
    </message>
    <message>
        <source>From the main data file</source>
        <translation>Aus der Hauptdatei</translation>
    </message>
    <message>
        <source>From an offline listing</source>
        <translation>Aus einer Offline-Liste</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Scroll the values</source>
        <translation>Die Werte rollen</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
    <message>
        <source>Line in the listing</source>
        <translation>Zeile in der Liste</translation>
    </message>
    <message>
        <source>C&amp;opy All</source>
        <translation>Alles &amp;kopieren</translation>
    </message>
    <message>
        <source>Not in the listing any more</source>
        <translation>Nicht mehr in der Liste</translation>
    </message>
    <message>
        <source>More than %1 hits: sorted by their text in lower case</source>
        <translation>Mehr als %1 Treffer: nach ihrem Text in Kleinbuchstaben sortiert</translation>
    </message>
    <message>
        <source>holds too many files; %1 name was left out</source>
        <translation>enthält zu viele Dateien; %1 Name wurde weggelassen</translation>
    </message>
    <message numerus="yes">
        <source>holds too many files; %1 names were left out</source>
        <translation>
            <numerusform>enthält zu viele Dateien; %1 Name wurde weggelassen</numerusform>
            <numerusform>enthält zu viele Dateien; %1 Namen wurden weggelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>holds too many sub-folders; %1 name was left out</source>
        <translation>enthält zu viele Unterordner; %1 Name wurde weggelassen</translation>
    </message>
    <message numerus="yes">
        <source>holds too many sub-folders; %1 names were left out</source>
        <translation>
            <numerusform>enthält zu viele Unterordner; %1 Name wurde weggelassen</numerusform>
            <numerusform>enthält zu viele Unterordner; %1 Namen wurden weggelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>Contains unsuported characters represented by the ?</source>
        <translation>Enthält nicht unterstützte Zeichen, für die ein ? steht</translation>
    </message>
    <message>
        <source>was left out: its path is too long for a listing</source>
        <translation>wurde weggelassen: der Pfad ist zu lang für eine Liste</translation>
    </message>
    <message>
        <source>is too large for a listing; its size was written as %1</source>
        <translation>ist zu groß für eine Liste; als Größe wurde %1 geschrieben</translation>
    </message>
    <message>
        <source>Indexing: %1</source>
        <translation>Wird eingelesen: %1</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 folder</source>
        <comment>files</comment>
        <translation>%1 in %2 Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %2 folders</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 in %2 Ordner</numerusform>
            <numerusform>%1 in %2 Ordnern</numerusform>
        </translation>
    </message>
    <message>
        <source>Updating online file lists... %1 of %2</source>
        <extracomment>Keep the three dots and the blank behind them.</extracomment>
        <translation>Online-Dateilisten werden aktualisiert... %1 von %2</translation>
    </message>
    <message>
        <source>The listing of %1 was not made, since it would overwrite %2; please give it another description</source>
        <translation>Die Liste von %1 wurde nicht gemacht, weil sie %2 überschreiben würde; bitte geben Sie ihr eine andere Beschreibung</translation>
    </message>
    <message>
        <source>%1 not found; the listing of %2 was kept</source>
        <translation>%1 nicht gefunden; die Liste von %2 wurde behalten</translation>
    </message>
    <message>
        <source>The listing of %1 from %2 was replaced by that from %3, which has the same description; please give one of them another description</source>
        <translation>Die Liste von %1 aus %2 wurde durch die aus %3 ersetzt, die dieselbe Beschreibung hat; bitte geben Sie einer der beiden eine andere Beschreibung</translation>
    </message>
    <message>
        <source>The earlier listing of %1 could not be kept in the listing history: %2</source>
        <translation>Die frühere Liste von %1 konnte nicht im Listenverlauf aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>The listing of %1 is incomplete, since the rescan was stopped</source>
        <translation>Die Liste von %1 ist unvollständig, weil das Einlesen angehalten wurde</translation>
    </message>
    <message>
        <source>%1 holds no files any more; if its drive is not connected, connect it and rescan. The listing of %2 is empty now</source>
        <translation>%1 enthält keine Dateien mehr; wenn das Laufwerk nicht verbunden ist, verbinden Sie es und lesen Sie neu ein. Die Liste von %2 ist jetzt leer</translation>
    </message>
    <message numerus="yes">
        <source>File, Listing History brings back the one of %1 with %2 entries</source>
        <translation>
            <numerusform>Datei, Listenverlauf holt die vom %1 mit %2 Eintrag zurück</numerusform>
            <numerusform>Datei, Listenverlauf holt die vom %1 mit %2 Einträgen zurück</numerusform>
        </translation>
    </message>
    <message>
        <source>The local lists cannot be refreshed now: another refresh is running.</source>
        <translation>Die lokalen Listen können jetzt nicht aufgefrischt werden: das geschieht gerade schon.</translation>
    </message>
    <message>
        <source>Error Refreshing Local Lists:%1</source>
        <translation>Fehler beim Auffrischen der lokalen Listen: %1</translation>
    </message>
    <message>
        <source>(there is not enough memory)</source>
        <translation>(nicht genügend Speicher)</translation>
    </message>
    <message>
        <source>(too many files are open)</source>
        <translation>(zu viele Dateien sind geöffnet)</translation>
    </message>
    <message>
        <source>holds &quot;%1&quot;; a search misreads its line</source>
        <translation>enthält „%1“; eine Suche liest diese Zeile falsch</translation>
    </message>
    <message>
        <source>File not found (invalid name)</source>
        <translation>Datei nicht gefunden (ungültiger Name)</translation>
    </message>
    <message>
        <source>In %1:</source>
        <translation>In %1:</translation>
    </message>
    <message>
        <source>Access Error (invalid name or permission)</source>
        <translation>Zugriffsfehler (ungültiger Name oder fehlende Berechtigung)</translation>
    </message>
    <message>
        <source>Left out: %1 of %2 files in %3</source>
        <translation>Weggelassen: %1 von %2 Dateien in %3</translation>
    </message>
    <message>
        <source>Left out: %1 of %2 sub-folders in %3</source>
        <translation>Weggelassen: %1 von %2 Unterordnern in %3</translation>
    </message>
    <message>
        <source>Error Number: %1 %2<byte value="xd"/>
Error reading:%3 Skipping.</source>
        <translation>Fehlernummer: %1&#xa0;%2<byte value="xd"/>
Fehler beim Lesen von: %3 Wird übersprungen.</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>es ist nicht genügend Speicher dafür da</translation>
    </message>
    <message>
        <source>the program that draws metafiles has not answered as it should</source>
        <translation>das Programm, das Metadateien zeichnet, hat nicht geantwortet, wie es sollte</translation>
    </message>
    <message>
        <source>it is larger than 64 MB</source>
        <translation>sie ist größer als 64 MB</translation>
    </message>
    <message>
        <source>a bitmap in it has an unknown header</source>
        <translation>ein Bild darin hat einen unbekannten Kopf</translation>
    </message>
    <message>
        <source>a bitmap in it is empty</source>
        <translation>ein Bild darin ist leer</translation>
    </message>
    <message>
        <source>a bitmap in it is too large</source>
        <translation>ein Bild darin ist zu groß</translation>
    </message>
    <message>
        <source>JPEG and PNG pictures in it</source>
        <translation>darin enthaltene JPEG- und PNG-Bilder</translation>
    </message>
    <message>
        <source>a bitmap in it cannot be read</source>
        <translation>ein Bild darin kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>a bitmap in it is not monochrome</source>
        <translation>ein Bild darin ist nicht einfarbig</translation>
    </message>
    <message>
        <source>its scale makes no sense</source>
        <translation>ihr Maßstab ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>its header is too short</source>
        <translation>ihr Kopf ist zu kurz</translation>
    </message>
    <message>
        <source>it is damaged or cut short</source>
        <translation>die Datei ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>damaged parts</source>
        <translation>beschädigte Teile</translation>
    </message>
    <message>
        <source>flood fills</source>
        <translation>Farbfüllungen</translation>
    </message>
    <message>
        <source>EMF+ drawings</source>
        <translation>EMF+-Zeichnungen</translation>
    </message>
    <message>
        <source>OpenGL drawings</source>
        <translation>OpenGL-Zeichnungen</translation>
    </message>
    <message>
        <source>mirroring</source>
        <translation>Spiegelung</translation>
    </message>
    <message>
        <source>it has too many objects</source>
        <translation>sie hat zu viele Objekte</translation>
    </message>
    <message>
        <source>bitmaps mixed through masks</source>
        <translation>durch Masken gemischte Bilder</translation>
    </message>
    <message>
        <source>colours of palettes</source>
        <translation>Farben aus Paletten</translation>
    </message>
    <message>
        <source>a region in it has too many parts</source>
        <translation>ein Bereich darin hat zu viele Teile</translation>
    </message>
    <message>
        <source>it uses an object that it has not made</source>
        <translation>sie benutzt ein Objekt, das sie nicht gemacht hat</translation>
    </message>
    <message>
        <source>an arc in it makes no sense</source>
        <translation>ein Bogen darin ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>it needs too much memory</source>
        <translation>sie braucht zu viel Speicher</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>sie hat keine Größe</translation>
    </message>
    <message>
        <source>it saves its state too often</source>
        <translation>sie sichert ihren Zustand zu oft</translation>
    </message>
    <message>
        <source>it cuts its drawing in an unknown way</source>
        <translation>sie beschneidet ihre Zeichnung auf eine unbekannte Art</translation>
    </message>
    <message>
        <source>rare raster operations</source>
        <translation>seltene Rasteroperationen</translation>
    </message>
    <message>
        <source>a bitmap in it has no size</source>
        <translation>ein Bild darin hat keine Größe</translation>
    </message>
    <message>
        <source>text by glyph numbers</source>
        <translation>Text aus Glyphennummern</translation>
    </message>
    <message>
        <source>letters of symbol fonts</source>
        <translation>Zeichen aus Symbolschriften</translation>
    </message>
    <message>
        <source>it is not a metafile</source>
        <translation>sie ist keine Metadatei</translation>
    </message>
    <message>
        <source>it does not say how large it is</source>
        <translation>sie sagt nicht, wie groß sie ist</translation>
    </message>
    <message>
        <source>patterns in the form of a device</source>
        <translation>Muster in der Form eines Geräts</translation>
    </message>
    <message>
        <source>bitmaps in the form of a device</source>
        <translation>Bilder in der Form eines Geräts</translation>
    </message>
    <message>
        <source>the answer names no lists</source>
        <translation>die Antwort nennt keine Listen</translation>
    </message>
    <message>
        <source>The answer is not that of a list exchange</source>
        <translation>Die Antwort ist nicht die eines Listenaustauschs</translation>
    </message>
    <message>
        <source>The name of a list has no end</source>
        <translation>Der Name einer Liste hat kein Ende</translation>
    </message>
    <message>
        <source>The names of the lists have no end</source>
        <translation>Die Namen der Listen haben kein Ende</translation>
    </message>
    <message>
        <source>1 list</source>
        <translation>1 Liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 Liste</numerusform>
            <numerusform>%1 Listen</numerusform>
        </translation>
    </message>
    <message>
        <source>No lists came from %1.</source>
        <translation>Von %1 kamen keine Listen.</translation>
    </message>
    <message>
        <source>The archive holds 1 listing.</source>
        <translation>Das Archiv enthält 1 Liste.</translation>
    </message>
    <message numerus="yes">
        <source>The archive holds %1 listings.</source>
        <translation>
            <numerusform>Das Archiv enthält %1 Liste.</numerusform>
            <numerusform>Das Archiv enthält %1 Listen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The archives hold 1 listing.</source>
        <translation>Die Archive enthalten 1 Liste.</translation>
    </message>
    <message numerus="yes">
        <source>The archives hold %1 listings.</source>
        <translation>
            <numerusform>Die Archive enthalten %1 Liste.</numerusform>
            <numerusform>Die Archive enthalten %1 Listen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is room for 1 more offline source.</source>
        <translation>Es ist Platz für 1 weitere Offline-Quelle.</translation>
    </message>
    <message numerus="yes">
        <source>There is room for %1 more offline sources.</source>
        <translation>
            <numerusform>Es ist Platz für %1 weitere Offline-Quelle.</numerusform>
            <numerusform>Es ist Platz für %1 weitere Offline-Quellen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 came from %2 into the folder</source>
        <translation>Angekommen: %1 von %2 im Ordner</translation>
    </message>
    <message>
        <source>Add the received lists to the offline sources, so that the next search includes them?</source>
        <translation>Sollen die erhaltenen Listen zu den Offline-Quellen hinzugefügt werden, damit die nächste Suche sie einschließt?</translation>
    </message>
    <message>
        <source>1 list was left out, since unpacking was cancelled. The archives stay in the folder.</source>
        <translation>1 Liste wurde weggelassen, weil das Entpacken abgebrochen wurde. Die Archive bleiben im Ordner.</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists were left out, since unpacking was cancelled. The archives stay in the folder.</source>
        <translation>
            <numerusform>%1 Liste wurde weggelassen, weil das Entpacken abgebrochen wurde. Die Archive bleiben im Ordner.</numerusform>
            <numerusform>%1 Listen wurden weggelassen, weil das Entpacken abgebrochen wurde. Die Archive bleiben im Ordner.</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; holds no listing.</source>
        <translation>Das Archiv von „%1“ enthält keine Liste.</translation>
    </message>
    <message>
        <source>%1 has a name that no source can have.</source>
        <translation>%1 hat einen Namen, den keine Quelle haben kann.</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>There is no room for more than %1 offline sources. The received lists stay unpacked beside its archives.</source>
        <translation>Mehr als %1 Offline-Quellen haben keinen Platz. Die erhaltenen Listen bleiben entpackt neben ihren Archiven.</translation>
    </message>
    <message>
        <source>Unpacking %1</source>
        <translation>%1 wird entpackt</translation>
    </message>
    <message>
        <source>One run of the program can ask for about 1000 lists. Start it again to get the others.</source>
        <translation>Ein Lauf des Programms kann um etwa 1000 Listen bitten. Starten Sie es neu, um die anderen zu holen.</translation>
    </message>
    <message>
        <source>The archive of %1 has no end</source>
        <translation>Das Archiv von %1 hat kein Ende</translation>
    </message>
    <message>
        <source>The peer sent no archive of %1.</source>
        <translation>Die Gegenstelle hat kein Archiv von %1 gesendet.</translation>
    </message>
    <message>
        <source>The archive of %1 did not arrive complete, and was not kept.</source>
        <translation>Das Archiv von %1 kam nicht vollständig an und wurde nicht behalten.</translation>
    </message>
    <message>
        <source>The peer could not be reached: %1</source>
        <translation>Die Gegenstelle war nicht zu erreichen: %1</translation>
    </message>
    <message>
        <source>The peer ended the connection before everything had arrived.</source>
        <translation>Die Gegenstelle hat die Verbindung beendet, bevor alles angekommen war.</translation>
    </message>
    <message>
        <source>The peer has stopped sending before everything had arrived.</source>
        <translation>Die Gegenstelle sendet nicht mehr, obwohl noch nicht alles angekommen ist.</translation>
    </message>
    <message>
        <source>The peer has not sent anything for %1 seconds.</source>
        <translation>Die Gegenstelle hat seit %1 Sekunden nichts gesendet.</translation>
    </message>
    <message>
        <source>The peer could not be reached within %1 seconds.</source>
        <translation>Die Gegenstelle war innerhalb von %1 Sekunden nicht zu erreichen.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Getting Lists</source>
        <translation>Listen werden geholt</translation>
    </message>
    <message>
        <source>Peer: %1</source>
        <translation>Gegenstelle: %1</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird aufgebaut...</translation>
    </message>
    <message>
        <source>Asking for the lists...</source>
        <translation>Es wird um die Listen gebeten...</translation>
    </message>
    <message>
        <source>List %1 of %2: %3</source>
        <translation>Liste %1 von %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more problem.</source>
        <translation>Es gab 1 weiteres Problem.</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more problems.</source>
        <translation>
            <numerusform>Es gab %1 weiteres Problem.</numerusform>
            <numerusform>Es gab %1 weitere Probleme.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a computer.</source>
        <translation>„%1“ ist weder Name noch Adresse eines Rechners.</translation>
    </message>
    <message>
        <source>Your lists are not shared: port %1 could not be opened.<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Ihre Listen sind nicht freigegeben: Port %1 konnte nicht geöffnet werden.<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>They are packed when the running work has ended.</source>
        <translation>Sie werden gepackt, wenn die laufende Arbeit beendet ist.</translation>
    </message>
    <message>
        <source>Your lists are shared.</source>
        <translation>Ihre Listen sind freigegeben.</translation>
    </message>
    <message>
        <source>%1 was not made by sharing. It was kept, and peers get it as it is.</source>
        <translation>%1 wurde nicht beim Freigeben gemacht. Das Archiv wurde behalten, und Gegenstellen bekommen es, wie es ist.</translation>
    </message>
    <message>
        <source>Not all could be packed:</source>
        <translation>Nicht alle konnten gepackt werden:</translation>
    </message>
    <message>
        <source>Your lists are shared on port %1 of this address: %2</source>
        <translation>Ihre Listen sind auf Port %1 dieser Adresse freigegeben: %2</translation>
    </message>
    <message>
        <source>Your lists are shared on port %1 of these addresses: %2</source>
        <translation>Ihre Listen sind auf Port %1 dieser Adressen freigegeben: %2</translation>
    </message>
    <message>
        <source>a pipe for signals</source>
        <translation>eine Pipe für Signale</translation>
    </message>
    <message>
        <source>Image Preview</source>
        <translation>Bildvorschau</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>%1 wird geladen...</translation>
    </message>
    <message>
        <source>Drawn without: %1.</source>
        <translation>Gezeichnet ohne: %1.</translation>
    </message>
    <message>
        <source>Picture frame</source>
        <translation>Bilderrahmen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>%1 cannot be shown: %2.</source>
        <translation>%1 kann nicht gezeigt werden: %2.</translation>
    </message>
    <message>
        <source>it is damaged, or of a kind that is not supported</source>
        <translation>die Datei ist beschädigt oder von einer nicht unterstützten Art</translation>
    </message>
    <message>
        <source>with %1 by %2 pixels it is larger than 256 megapixels</source>
        <translation>mit %1 mal %2 Pixeln ist es größer als 256 Megapixel</translation>
    </message>
    <message>
        <source>it is not a bitmap, icon, metafile, JPEG or GIF picture</source>
        <translation>es ist kein Bild der Arten Bitmap, Icon, Metadatei, JPEG oder GIF</translation>
    </message>
    <message>
        <source>its loading was cancelled</source>
        <translation>das Laden wurde abgebrochen</translation>
    </message>
    <message>
        <source>drawing it takes too long</source>
        <translation>das Zeichnen dauert zu lange</translation>
    </message>
    <message>
        <source>the program that draws metafiles cannot be started</source>
        <translation>das Programm, das Metadateien zeichnet, kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>it is damaged, or drawing it needs too much memory or time</source>
        <translation>die Datei ist beschädigt, oder sie zu zeichnen braucht zu viel Speicher oder Zeit</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Scroll the results down</source>
        <translation>Die Ergebnisse nach unten rollen</translation>
    </message>
    <message>
        <source>Scroll the results sideways</source>
        <translation>Die Ergebnisse zur Seite rollen</translation>
    </message>
    <message>
        <source>(damaged in the search cache; press Find again)</source>
        <translation>(im Suchcache beschädigt; klicken Sie noch einmal auf Suchen)</translation>
    </message>
    <message>
        <source>Line %1 is longer than %2 bytes</source>
        <translation>Zeile %1 ist länger als %2 Bytes</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more listings</source>
        <translation>
            <numerusform>und %1 weitere Liste</numerusform>
            <numerusform>und %1 weitere Listen</numerusform>
        </translation>
    </message>
    <message>
        <source>Listing file not found: %1</source>
        <translation>Listendatei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>The listing %1 could not be searched to its end.<byte value="xd"/>
Run-time error &apos;%2&apos;: %3<byte value="xd"/>
The hits found in it so far are kept.</source>
        <translation>Die Liste %1 konnte nicht bis zu ihrem Ende durchsucht werden.<byte value="xd"/>
Laufzeitfehler &apos;%2&apos;: %3<byte value="xd"/>
Die bis dahin in ihr gefundenen Treffer bleiben.</translation>
    </message>
    <message>
        <source>The size or date of some hits could not be read. They are shown with the size and date of the hit before them.</source>
        <translation>Größe oder Datum mancher Treffer konnten nicht gelesen werden. Sie werden mit Größe und Datum des Treffers davor gezeigt.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 line(s), the first is line %3</source>
        <translation>
            <numerusform>%1: %2 Zeile, die erste ist Zeile %3</numerusform>
            <numerusform>%1: %2 Zeilen, die erste ist Zeile %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and in %1 more listings</source>
        <translation>
            <numerusform>und in %1 weiteren Liste</numerusform>
            <numerusform>und in %1 weiteren Listen</numerusform>
        </translation>
    </message>
    <message>
        <source>These listings were written to while they were searched. Hits in them may come from the old or the new content; press Find again for the new one.</source>
        <translation>In diese Listen wurde geschrieben, während sie durchsucht wurden. Treffer in ihnen können aus dem alten oder dem neuen Inhalt stammen; für den neuen klicken Sie noch einmal auf Suchen.</translation>
    </message>
    <message>
        <source>These listings are not plain text, so little or nothing is found in them. If one was saved as UTF-16 (&quot;Unicode&quot;) without a byte order mark, save it as UTF-8.</source>
        <translation>Diese Listen sind kein reiner Text, deshalb wird in ihnen wenig oder nichts gefunden. Wurde eine als UTF-16 („Unicode“) ohne Byte-Reihenfolge-Markierung gespeichert, speichern Sie sie als UTF-8.</translation>
    </message>
    <message>
        <source>A file of the search cache is damaged</source>
        <translation>Eine Datei des Suchcaches ist beschädigt</translation>
    </message>
    <message>
        <source>%1 of %2 words</source>
        <translation>%1 von %2 Wörtern</translation>
    </message>
    <message>
        <source>%1; missing: %2</source>
        <translation>%1; es fehlt: %2</translation>
    </message>
    <message>
        <source>Your lists were kept in %1, beside the program, where a new build or an update may remove them.</source>
        <translation>Ihre Listen lagen in %1, neben dem Programm, wo ein neuer Build oder ein Update sie entfernen kann.</translation>
    </message>
    <message>
        <source>They have been copied to %1, and are used there from now on. The old files are no longer needed.</source>
        <translation>Sie wurden nach %1 kopiert und werden von jetzt an dort benutzt. Die alten Dateien werden nicht mehr gebraucht.</translation>
    </message>
    <message>
        <source>They could not be copied to %1, which holds another file of the name %2. Put together by hand what you want to keep, and choose its folder under File, Options.</source>
        <translation>Sie konnten nicht nach %1 kopiert werden, wo eine andere Datei mit dem Namen %2 liegt. Stellen Sie von Hand zusammen, was Sie behalten wollen, und wählen Sie den Ordner davon unter Datei, Optionen.</translation>
    </message>
    <message>
        <source>They could not be copied to %1: %2</source>
        <translation>Sie konnten nicht nach %1 kopiert werden: %2</translation>
    </message>
    <message>
        <source>An earlier run ended without saving these changes, the last of them on %1:</source>
        <translation>Ein früherer Lauf endete, ohne diese Änderungen zu speichern, die letzte davon am %1:</translation>
    </message>
    <message>
        <source>Local folders in the search list</source>
        <translation>Lokale Ordner in der Suchliste</translation>
    </message>
    <message>
        <source>Offline list files</source>
        <translation>Offline-Listendateien</translation>
    </message>
    <message>
        <source>Do you want to have them back? No removes them.</source>
        <translation>Möchten Sie sie zurückhaben? „Nein“ entfernt sie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date</source>
        <translation>„%1“ ist kein Datum</translation>
    </message>
    <message>
        <source>%1 is in the list already.</source>
        <translation>%1 steht schon in der Liste.</translation>
    </message>
    <message>
        <source>The Path must be at lease 3 characters long. (ex: C:\)</source>
        <translation>Der Pfad muss mindestens 3 Zeichen lang sein. (Beispiel: C:\)</translation>
    </message>
    <message>
        <source>Description must not be left blank or contain the characters /?\:|*</source>
        <translation>Die Beschreibung darf nicht leer sein und keines der Zeichen /?\:|* enthalten</translation>
    </message>
    <message>
        <source>The Path must not contain a double quote, since a list of sources cannot keep one. Please give the folder another name, or use a link to it.</source>
        <translation>Der Pfad darf kein doppeltes Anführungszeichen enthalten, weil eine Quellenliste keines aufnehmen kann. Bitte geben Sie dem Ordner einen anderen Namen oder benutzen Sie eine Verknüpfung zu ihm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file of the program; it needs another description.</source>
        <translation>„%1“ ist eine Datei des Programms; eine andere Beschreibung ist nötig.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice; both would share one listing.</source>
        <translation>„%1“ steht zweimal da; beide hätten dieselbe Liste.</translation>
    </message>
    <message>
        <source>A list can hold %1 entries at most, and this one has %2.<byte value="xd"/>
<byte value="xd"/>
Nothing has been saved. Please delete entries and save again.</source>
        <translation>Eine Liste kann höchstens %1 Einträge enthalten, und diese hat %2.<byte value="xd"/>
<byte value="xd"/>
Nichts wurde gespeichert. Bitte löschen Sie Einträge und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 holds more than %2 records</source>
        <translation>%1 enthält mehr als %2 Datensätze</translation>
    </message>
    <message>
        <source>The list %1 was not read completely when the program started.</source>
        <translation>Die Liste %1 wurde beim Start des Programms nicht vollständig gelesen.</translation>
    </message>
    <message>
        <source>The list %1 was not read, since its folder became the data folder only later.</source>
        <translation>Die Liste %1 wurde nicht gelesen, weil ihr Ordner erst später zum Datenordner wurde.</translation>
    </message>
    <message>
        <source>The list %1 was not there when the program started.</source>
        <translation>Die Liste %1 war beim Start des Programms nicht da.</translation>
    </message>
    <message>
        <source>The list %1 has been changed by another program.</source>
        <translation>Die Liste %1 wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>The list %1 looks damaged: it has the path &quot;%2&quot; where a description should be. A double quote in a description or a path does that.</source>
        <translation>Die Liste %1 sieht beschädigt aus: wo eine Beschreibung stehen sollte, steht der Pfad „%2“. Das kommt von einem doppelten Anführungszeichen in einer Beschreibung oder einem Pfad.</translation>
    </message>
    <message>
        <source>It is kept as %1, and the list as it is now is saved in its place.</source>
        <translation>Sie wird als %1 aufbewahrt, und die Liste, wie sie jetzt ist, wird an ihrer Stelle gespeichert.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Sie wurde gelassen, wie sie war.</translation>
    </message>
    <message>
        <source>The Local Data Folder path is invalid.<byte value="xd"/>
<byte value="xd"/>
Unable to save the online sources list.</source>
        <translation>Der Pfad des lokalen Datenordners ist ungültig.<byte value="xd"/>
<byte value="xd"/>
Die Liste der Online-Quellen kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as de</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>the server did not answer in time</source>
        <translation>der Server hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>the document is too large</source>
        <translation>das Dokument ist zu groß</translation>
    </message>
    <message>
        <source>the document ended too early</source>
        <translation>das Dokument endete zu früh</translation>
    </message>
    <message>
        <source>the server answered %1</source>
        <translation>der Server hat %1 geantwortet</translation>
    </message>
    <message>
        <source>the server fell silent</source>
        <translation>der Server ist verstummt</translation>
    </message>
    <message>
        <source>These files of the archive were left out, since they would have replaced your source lists, your settings, your listing history, or the program itself:</source>
        <translation>Diese Dateien des Archivs wurden weggelassen, weil sie Ihre Quellenlisten, Ihre Einstellungen, Ihren Listenverlauf oder das Programm selbst ersetzt hätten:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>und %1 weitere</numerusform>
            <numerusform>und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Archive Error: %1</source>
        <translation>Archivfehler: %1</translation>
    </message>
    <message>
        <source>The earlier %1 could not be kept in the listing history: %2</source>
        <translation>Die frühere %1 konnte nicht im Listenverlauf aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>%1: Could not get an update.</source>
        <translation>%1: Es konnte kein Update geholt werden.</translation>
    </message>
    <message>
        <source>The update was downloaded, but %1 cannot be found now. Nothing was unpacked.</source>
        <translation>Das Update wurde heruntergeladen, aber %1 ist jetzt nicht zu finden. Nichts wurde entpackt.</translation>
    </message>
    <message>
        <source>Your data file is up to date.</source>
        <translation>Ihre Datendatei ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>An updated data file is avaliable at %1 do you want to download the update?</source>
        <translation>Unter %1 ist eine neuere Datendatei verfügbar. Möchten Sie das Update herunterladen?</translation>
    </message>
    <message>
        <source>Starting download of update.</source>
        <translation>Das Herunterladen des Updates beginnt.</translation>
    </message>
    <message>
        <source>Retrieved compressed data update!</source>
        <translation>Gepacktes Update der Daten geholt!</translation>
    </message>
    <message>
        <source>Decompressing...</source>
        <translation>Wird entpackt...</translation>
    </message>
    <message>
        <source>Decompressing Compressed Data File.</source>
        <translation>Die gepackte Datendatei wird entpackt.</translation>
    </message>
    <message>
        <source>%1 could not be unpacked</source>
        <translation>%1 konnte nicht entpackt werden</translation>
    </message>
    <message>
        <source>A search is running.</source>
        <translation>Eine Suche läuft.</translation>
    </message>
    <message>
        <source>The local folders are being rescanned.</source>
        <translation>Die lokalen Ordner werden neu eingelesen.</translation>
    </message>
    <message>
        <source>A web update is running.</source>
        <translation>Ein Web-Update läuft.</translation>
    </message>
    <message>
        <source>The main data file is being unpacked.</source>
        <translation>Die Hauptdatei wird entpackt.</translation>
    </message>
    <message>
        <source>Your lists are being packed for sharing.</source>
        <translation>Ihre Listen werden zum Freigeben gepackt.</translation>
    </message>
    <message>
        <source>Lists are being received from a peer.</source>
        <translation>Listen werden von einer Gegenstelle empfangen.</translation>
    </message>
    <message>
        <source>Lists that came from a peer are being unpacked.</source>
        <translation>Listen von einer Gegenstelle werden entpackt.</translation>
    </message>
    <message>
        <source>Hits are being exported.</source>
        <translation>Treffer werden exportiert.</translation>
    </message>
    <message>
        <source>A search</source>
        <translation>Eine Suche</translation>
    </message>
    <message>
        <source>The rescan</source>
        <translation>Das Einlesen</translation>
    </message>
    <message>
        <source>The web update</source>
        <translation>Das Web-Update</translation>
    </message>
    <message>
        <source>Unpacking the main data file</source>
        <translation>Das Entpacken der Hauptdatei</translation>
    </message>
    <message>
        <source>Packing your lists</source>
        <translation>Das Packen Ihrer Listen</translation>
    </message>
    <message>
        <source>Getting lists</source>
        <translation>Das Holen von Listen</translation>
    </message>
    <message>
        <source>Unpacking received lists</source>
        <translation>Das Entpacken empfangener Listen</translation>
    </message>
    <message>
        <source>The export</source>
        <translation>Der Export</translation>
    </message>
    <message>
        <source>Lists are already being received.</source>
        <translation>Listen werden schon empfangen.</translation>
    </message>
    <message>
        <source>%1 can be started when that has ended.</source>
        <translation>%1 kann gestartet werden, wenn das beendet ist.</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
    </message>
    <message>
        <source>the list could not be written to standard output</source>
        <translation>die Liste konnte nicht in die Standardausgabe geschrieben werden</translation>
    </message>
    <message>
        <source>%1 could not be removed</source>
        <translation>%1 konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>Write neither counts nor progress to standard error</source>
        <translation>Keine Zahlen und keinen Fortschritt nach stderr schreiben</translation>
    </message>
    <message>
        <source>Write JSON, an object a line</source>
        <translation>JSON schreiben, ein Objekt je Zeile</translation>
    </message>
    <message>
        <source>Find files in listings by words and a match percentage</source>
        <translation>Dateien in Listen nach Wörtern und Prozentanteil suchen</translation>
    </message>
    <message>
        <source>Hits must match more than this percentage; 50</source>
        <translation>Treffer müssen über diesem Prozentsatz liegen; 50</translation>
    </message>
    <message>
        <source>tsv (default), csv or json</source>
        <translation>tsv (Vorgabe), csv oder json</translation>
    </message>
    <message>
        <source>Of match,volume,folder,name,path,size,modified,listing,words</source>
        <translation>match,volume,folder,name,path,size,modified,listing,words</translation>
    </message>
    <message>
        <source>Start with the titles of the columns</source>
        <translation>Mit den Titeln der Spalten beginnen</translation>
    </message>
    <message>
        <source>Leave them out of csv with --fields, which starts with them</source>
        <translation>Sie bei csv mit --fields weglassen, wo sie sonst stehen</translation>
    </message>
    <message>
        <source>End rows with NUL instead of a line feed</source>
        <translation>Zeilen mit NUL statt mit Zeilenvorschub beenden</translation>
    </message>
    <message>
        <source>Write no more than N hits</source>
        <translation>Höchstens N Treffer schreiben</translation>
    </message>
    <message>
        <source>match, volume, folder, name, size or modified</source>
        <translation>match, volume, folder, name, size oder modified</translation>
    </message>
    <message>
        <source>The other way round, with --sort</source>
        <translation>Andersherum, zusammen mit --sort</translation>
    </message>
    <message>
        <source>Highlight the words: auto (default), always or never</source>
        <translation>Wörter hervorheben: auto (Vorgabe), always oder never</translation>
    </message>
    <message>
        <source>Write only the number of hits</source>
        <translation>Nur die Anzahl der Treffer schreiben</translation>
    </message>
    <message>
        <source>Neither read nor write the search cache</source>
        <translation>Den Suchcache weder lesen noch schreiben</translation>
    </message>
    <message>
        <source>Search your own sources</source>
        <translation>Die eigenen Quellen durchsuchen</translation>
    </message>
    <message>
        <source>Hand the files on</source>
        <translation>Die Dateien weiterreichen</translation>
    </message>
    <message>
        <source>A listing from a pipe</source>
        <translation>Eine Liste aus einer Pipe</translation>
    </message>
    <message>
        <source>Writes one row for each entry of the listings that matches TEXT by more than the wanted percentage, in the order in which they are found. TEXT is one argument: words with blanks between, in any order, of which each is looked for anywhere in folder or name, whatever its case. The match is the share of the words that were found. Without a LISTING, the user&apos;s own sources are searched, as the window does. A LISTING may be a pipe; - is standard input.</source>
        <translation>Schreibt eine Zeile für jeden Eintrag der Listen, der TEXT zu mehr als dem gewünschten Prozentsatz entspricht, in der Reihenfolge, in der sie gefunden werden. TEXT ist ein einziges Argument: durch Leerzeichen getrennte Wörter in beliebiger Reihenfolge. Jedes wird an beliebiger Stelle in Ordner oder Name gesucht, ohne Rücksicht auf Groß- und Kleinschreibung. Der Anteil ist der Teil der Wörter, der gefunden wurde. Ohne LISTING werden wie im Fenster die eigenen Quellen durchsucht. LISTING kann eine Pipe sein; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>In tsv and csv, the columns are those of the window unless --fields chooses others: the match as &quot;100%&quot;, volume, folder, name, the size in megabytes and the date, as the locale writes them. Json has all fields. Tsv has blanks in place of control characters, but where -0 is given and there is one column, texts are left as they are. On a terminal, no control character of a name gets through.</source>
        <translation>In tsv und csv sind die Spalten die des Fensters, wenn --fields keine anderen wählt: der Anteil als „100%“, Datenträger, Ordner, Name, die Größe in Megabyte und das Datum, wie die Ländereinstellung sie schreibt. Json hat alle Felder. Tsv hat Leerzeichen anstelle von Steuerzeichen; nur mit -0 und einer einzigen Spalte bleiben Texte, wie sie sind. Auf ein Terminal gelangt kein Steuerzeichen eines Namens.</translation>
    </message>
    <message>
        <source>The last line on standard error says how many entries were found and searched. With --sort nothing is written before all is searched.</source>
        <translation>Die letzte Zeile der Standardfehlerausgabe sagt, wie viele Einträge gefunden und durchsucht wurden. Mit --sort wird nichts geschrieben, bevor alles durchsucht ist.</translation>
    </message>
    <message>
        <source>Write the listing of a folder</source>
        <translation>Die Liste eines Ordners schreiben</translation>
    </message>
    <message>
        <source>The volume&apos;s name in the listing; default: the folder&apos;s name</source>
        <translation>Name des Datenträgers in der Liste; sonst der des Ordners</translation>
    </message>
    <message>
        <source>List folders only</source>
        <translation>Nur Ordner auflisten</translation>
    </message>
    <message>
        <source>The listing&apos;s file; default, and -: standard output</source>
        <translation>Datei der Liste; sonst, und bei -: die Standardausgabe</translation>
    </message>
    <message>
        <source>Catalogue a folder</source>
        <translation>Einen Ordner katalogisieren</translation>
    </message>
    <message>
        <source>Name it, and pack it</source>
        <translation>Ihr einen Namen geben und sie packen</translation>
    </message>
    <message>
        <source>Catalogues a folder with everything below it. A file is put in place when it is whole; until then, and when anything goes wrong, the one that was there before stays. Names that could not be read are reported on standard error.</source>
        <translation>Katalogisiert einen Ordner mit allem darunter. Eine Datei kommt erst an ihren Platz, wenn sie vollständig ist; bis dahin, und wenn etwas schiefgeht, bleibt die bisherige. Namen, die nicht gelesen werden konnten, werden auf der Standardfehlerausgabe gemeldet.</translation>
    </message>
    <message>
        <source>Renew the listings of your own folders, or of those named</source>
        <translation>Die Listen der eigenen oder der genannten Ordner erneuern</translation>
    </message>
    <message>
        <source>Write what was done to standard output, as JSON</source>
        <translation>Was getan wurde, als JSON in die Standardausgabe schreiben</translation>
    </message>
    <message>
        <source>Renew all of them</source>
        <translation>Alle erneuern</translation>
    </message>
    <message>
        <source>Only these</source>
        <translation>Nur diese</translation>
    </message>
    <message>
        <source>A NAME is the description of a folder. A folder that is not there, such as an unplugged drive, keeps its listing. What a listing held before is kept too; see history.</source>
        <translation>NAME ist die Beschreibung eines Ordners. Ein Ordner, der nicht da ist, etwa auf einem abgezogenen Laufwerk, behält seine Liste. Auch was eine Liste vorher enthielt, wird aufbewahrt; siehe history.</translation>
    </message>
    <message>
        <source>Show folders and offline lists</source>
        <translation>Ordner und Offline-Listen zeigen</translation>
    </message>
    <message>
        <source>Add a folder and an offline list</source>
        <translation>Einen Ordner und eine Offline-Liste hinzufügen</translation>
    </message>
    <message>
        <source>Take one out of its list</source>
        <translation>Eine Quelle aus ihrer Liste nehmen</translation>
    </message>
    <message>
        <source>Have one searched first</source>
        <translation>Eine zuerst durchsuchen lassen</translation>
    </message>
    <message>
        <source>Shows a row for each source, in the order in which they are searched: &quot;folder&quot;, &quot;main&quot; or &quot;offline&quot;, its description, its path, the path of its listing, and whether the source is &quot;there&quot; or &quot;gone&quot;, parted by tabs. The last line, on standard error, names the folder in which listings and lists are kept.</source>
        <translation>Zeigt eine Zeile für jede Quelle, in der Reihenfolge, in der sie durchsucht werden: „folder“, „main“ oder „offline“, ihre Beschreibung, ihren Pfad, den Pfad ihrer Liste, und ob die Quelle „there“ (da) oder „gone“ (weg) ist, durch Tabulatoren getrennt. Die letzte Zeile, auf der Standardfehlerausgabe, nennt den Ordner, in dem Listen und Quellenlisten liegen.</translation>
    </message>
    <message>
        <source>A window that is open shows changes when it is next started. Where it has changed the same list meanwhile, neither is lost: one of them is kept beside the other, and a message says so.</source>
        <translation>Ein geöffnetes Fenster zeigt Änderungen, wenn es das nächste Mal gestartet wird. Hat es inzwischen dieselbe Liste geändert, geht keine der beiden verloren: eine wird neben der anderen aufbewahrt, und eine Meldung sagt es.</translation>
    </message>
    <message>
        <source>Add folders of your own, or listings as offline lists</source>
        <translation>Eigene Ordner hinzufügen, oder Listen als Offline-Listen</translation>
    </message>
    <message>
        <source>The description of one source; default: the folder&apos;s name</source>
        <translation>Beschreibung einer Quelle; sonst der Name des Ordners</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>Ein Ordner</translation>
    </message>
    <message>
        <source>An offline list</source>
        <translation>Eine Offline-Liste</translation>
    </message>
    <message>
        <source>All of the paths are added, or none. A folder is listed by the next refresh.</source>
        <translation>Alle Pfade werden hinzugefügt oder keiner. Ein Ordner wird beim nächsten refresh aufgelistet.</translation>
    </message>
    <message>
        <source>Take sources out of their lists</source>
        <translation>Quellen aus ihren Listen nehmen</translation>
    </message>
    <message>
        <source>By its description</source>
        <translation>Nach der Beschreibung</translation>
    </message>
    <message>
        <source>By its path</source>
        <translation>Nach dem Pfad</translation>
    </message>
    <message>
        <source>A NAME is a description or a path. Neither folder nor listing is touched.</source>
        <translation>NAME ist eine Beschreibung oder ein Pfad. Weder Ordner noch Liste werden angerührt.</translation>
    </message>
    <message>
        <source>Give a source another place in its list</source>
        <translation>Einer Quelle einen anderen Platz in ihrer Liste geben</translation>
    </message>
    <message>
        <source>Search it before the others</source>
        <translation>Sie vor den anderen durchsuchen</translation>
    </message>
    <message>
        <source>A NAME is a description or a path, PLACE a number from 1. Sources are searched in this order.</source>
        <translation>NAME ist eine Beschreibung oder ein Pfad, PLACE eine Zahl ab 1. In dieser Reihenfolge werden die Quellen durchsucht.</translation>
    </message>
    <message>
        <source>Show the earlier versions of listings, or restore one</source>
        <translation>Frühere Fassungen von Listen zeigen oder wiederherstellen</translation>
    </message>
    <message>
        <source>Put the newest complete version in the listing&apos;s place</source>
        <translation>Die neueste vollständige Fassung zur Liste machen</translation>
    </message>
    <message>
        <source>Restore this version instead</source>
        <translation>Stattdessen diese Fassung wiederherstellen</translation>
    </message>
    <message>
        <source>Show what there is</source>
        <translation>Zeigen, was es gibt</translation>
    </message>
    <message>
        <source>Bring that version back</source>
        <translation>Diese Fassung zurückholen</translation>
    </message>
    <message>
        <source>Each row holds the listing, the number of the version, when the listing was made, its entries, its bytes, and &quot;complete&quot;, &quot;incomplete&quot; or &quot;damaged&quot;, parted by tabs, newest first. LISTING is the description of a folder, or the name or path of a listing.</source>
        <translation>Jede Zeile enthält die Liste, die Nummer der Fassung, wann die Liste gemacht wurde, ihre Einträge, ihre Bytes und „complete“ (vollständig), „incomplete“ (unvollständig) oder „damaged“ (beschädigt), durch Tabulatoren getrennt, die neueste zuerst. LISTING ist die Beschreibung eines Ordners oder der Name oder Pfad einer Liste.</translation>
    </message>
    <message>
        <source>Show what is kept for later searches, or remove it</source>
        <translation>Zeigen oder entfernen, was für spätere Suchen da ist</translation>
    </message>
    <message>
        <source>Remove it; it is made again when it is needed</source>
        <translation>Es entfernen; es wird bei Bedarf neu gemacht</translation>
    </message>
    <message>
        <source>Only what belongs to no listing any more</source>
        <translation>Nur, was zu keiner Liste mehr gehört</translation>
    </message>
    <message>
        <source>Show it</source>
        <translation>Es zeigen</translation>
    </message>
    <message>
        <source>Tidy up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Each row holds a size in bytes and the listing it is for, parted by a tab, and a third column &quot;(gone)&quot; where that listing is not there any more. What no search can use is marked as &quot;(damaged)&quot;, &quot;(unfinished)&quot; or &quot;(of an earlier version)&quot;.</source>
        <translation>Jede Zeile enthält eine Größe in Bytes und die zugehörige Liste, durch einen Tabulator getrennt, und eine dritte Spalte „(gone)“, wenn es diese Liste nicht mehr gibt. Was keine Suche brauchen kann, ist als „(damaged)“ (beschädigt), „(unfinished)“ (unfertig) oder „(of an earlier version)“ (einer früheren Version) gekennzeichnet.</translation>
    </message>
    <message>
        <source>Show this help, or that of a command behind it</source>
        <translation>Diese Hilfe zeigen, oder die eines Befehls dahinter</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Die Version zeigen</translation>
    </message>
    <message>
        <source>Write the completion for bash, zsh or fish</source>
        <translation>Die Vervollständigung für bash, zsh oder fish schreiben</translation>
    </message>
    <message>
        <source>Write the manual page</source>
        <translation>Die Handbuchseite schreiben</translation>
    </message>
    <message>
        <source>FIELDS</source>
        <translation>FELDER</translation>
    </message>
    <message>
        <source>What --fields of find chooses from, and the keys of its JSON:</source>
        <translation>Daraus wählt --fields von find, und so heißen die Schlüssel im JSON:</translation>
    </message>
    <message>
        <source>The match percentage, a number.</source>
        <translation>Der Anteil in Prozent, eine Zahl.</translation>
    </message>
    <message>
        <source>As the listing has them, the folder with backslashes.</source>
        <translation>Wie in der Liste, der Ordner mit umgekehrten Schrägstrichen.</translation>
    </message>
    <message>
        <source>The path of the file itself, where the hit is from a folder of your own; empty for others, and where the listing does not hold the whole name and the file is not there. With --fields path alone, hits without a path are left out and counted on standard error.</source>
        <translation>Der Pfad der Datei selbst, wenn der Treffer aus einem eigenen Ordner stammt; sonst leer, ebenso, wenn die Liste nicht den ganzen Namen enthält und die Datei nicht da ist. Mit --fields path allein werden Treffer ohne Pfad weggelassen und auf der Standardfehlerausgabe gezählt.</translation>
    </message>
    <message>
        <source>Bytes.</source>
        <translation>Bytes.</translation>
    </message>
    <message>
        <source>As in 2004-01-15T10:20:30, in the time zone of the machine that made the listing.</source>
        <translation>Wie 2004-01-15T10:20:30, in der Zeitzone des Rechners, der die Liste gemacht hat.</translation>
    </message>
    <message>
        <source>The path of the listing, as it was given.</source>
        <translation>Der Pfad der Liste, wie er angegeben wurde.</translation>
    </message>
    <message>
        <source>The words that were found, as they were searched for; in JSON an array.</source>
        <translation>Die gefundenen Wörter, so wie nach ihnen gesucht wurde; im JSON eine Reihe.</translation>
    </message>
    <message>
        <source>In JSON only, and only where it is true: the entry has no size and date of its own in the listing, and those shown are of an earlier line. Where there are none at all, both keys are left out.</source>
        <translation>Nur im JSON, und nur, wenn es zutrifft: der Eintrag hat in der Liste keine eigene Größe und kein eigenes Datum, und die gezeigten sind die einer früheren Zeile. Wo es gar keine gibt, fehlen beide Schlüssel.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>RÜCKGABEWERT</translation>
    </message>
    <message>
        <source>Something went wrong, or the command line was not understood; a sentence on standard error says what. What could be done was done. index and refresh: also when a folder holds more names than a listing takes.</source>
        <translation>Etwas ging schief, oder die Befehlszeile wurde nicht verstanden; ein Satz auf der Standardfehlerausgabe sagt, was. Was möglich war, wurde getan. index und refresh: auch, wenn ein Ordner mehr Namen enthält, als eine Liste aufnimmt.</translation>
    </message>
    <message>
        <source>An interrupt or a termination ended it. Complete rows and files stay.</source>
        <translation>Eine Unterbrechung oder Beendigung hat das Programm angehalten. Vollständige Zeilen und Dateien bleiben.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>The settings.</source>
        <translation>Die Einstellungen.</translation>
    </message>
    <message>
        <source>The search cache.</source>
        <translation>Der Suchcache.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>UMGEBUNG</translation>
    </message>
    <message>
        <source>If it is set and not empty, find colours nothing unless --color always is given.</source>
        <translation>Ist sie gesetzt und nicht leer, färbt find nichts, außer mit --color always.</translation>
    </message>
    <message>
        <source>How sizes and dates are written, and read in listings.</source>
        <translation>Wie Größen und Daten geschrieben und in Listen gelesen werden.</translation>
    </message>
    <message>
        <source>The settings file to use.</source>
        <translation>Die zu benutzende Einstellungsdatei.</translation>
    </message>
    <message>
        <source>See FILES.</source>
        <translation>Siehe DATEIEN.</translation>
    </message>
    <message>
        <source>the value of --match comes without &quot;%&quot;. Hits must match more than it: --match 99 finds what has all the words</source>
        <translation>der Wert von --match steht ohne „%“. Treffer müssen darüber liegen: --match 99 findet, was alle Wörter hat</translation>
    </message>
    <message>
        <source>the value of --match is a percentage from 1 to 100, not &quot;%1&quot;</source>
        <translation>der Wert von --match ist ein Prozentsatz von 1 bis 100, nicht „%1“</translation>
    </message>
    <message>
        <source>the search text is empty</source>
        <translation>der Suchtext ist leer</translation>
    </message>
    <message>
        <source>the search text has more than %1 words</source>
        <translation>der Suchtext hat mehr als %1 Wörter</translation>
    </message>
    <message>
        <source>%1 found, %2 searched</source>
        <translation>%1 gefunden, %2 durchsucht</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits could not be read from the search cache. Please try again</source>
        <translation>
            <numerusform>%1 Treffer konnte nicht aus dem Suchcache gelesen werden. Bitte versuchen Sie es noch einmal</numerusform>
            <numerusform>%1 Treffer konnten nicht aus dem Suchcache gelesen werden. Bitte versuchen Sie es noch einmal</numerusform>
        </translation>
    </message>
    <message>
        <source>the hits could not all be written to standard output</source>
        <translation>die Treffer konnten nicht alle in die Standardausgabe geschrieben werden</translation>
    </message>
    <message numerus="yes">
        <source>%1 hits were left out, since they are from no folder of your own or their files are not there</source>
        <translation>
            <numerusform>%1 Treffer wurde weggelassen, weil er nicht aus einem eigenen Ordner stammt oder seine Datei nicht da ist</numerusform>
            <numerusform>%1 Treffer wurden weggelassen, weil sie nicht aus einem eigenen Ordner stammen oder ihre Dateien nicht da sind</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing matches more than 100%; --match 99 finds what has all the words</source>
        <translation>nichts liegt über 100%; --match 99 findet, was alle Wörter hat</translation>
    </message>
    <message>
        <source>words to find come in one argument: &quot;%1 %2&quot;</source>
        <translation>die gesuchten Wörter kommen in ein einziges Argument: &quot;%1&#xa0;%2&quot;</translation>
    </message>
    <message>
        <source>there is no earlier version of %1</source>
        <translation>es gibt keine frühere Fassung von %1</translation>
    </message>
    <message>
        <source>name the listing that is to be restored</source>
        <translation>nennen Sie die Liste, die wiederhergestellt werden soll</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>there is no complete earlier version of %1</source>
        <translation>es gibt keine vollständige frühere Fassung von %1</translation>
    </message>
    <message>
        <source>%1 is version %2 again, with %3 entries</source>
        <translation>%1 ist wieder Fassung %2, mit %3 Einträgen</translation>
    </message>
    <message>
        <source>there is no folder of your own with the description &quot;%1&quot;; quorvin-cli sources shows them</source>
        <translation>es gibt keinen eigenen Ordner mit der Beschreibung „%1“; quorvin-cli sources zeigt sie</translation>
    </message>
    <message>
        <source>the outcome could not be written to standard output</source>
        <translation>das Ergebnis konnte nicht in die Standardausgabe geschrieben werden</translation>
    </message>
    <message>
        <source>the text could not be written to standard output</source>
        <translation>der Text konnte nicht in die Standardausgabe geschrieben werden</translation>
    </message>
    <message>
        <source>there is no completion for &quot;%1&quot;; the shells are bash, zsh and fish</source>
        <translation>es gibt keine Vervollständigung für „%1“; die Shells sind bash, zsh und fish</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 fehlt ein Wert</translation>
    </message>
    <message>
        <source>the options could not be understood</source>
        <translation>die Optionen wurden nicht verstanden</translation>
    </message>
    <message>
        <source>find needs the words to find, in one argument</source>
        <translation>find braucht die gesuchten Wörter, in einem einzigen Argument</translation>
    </message>
    <message>
        <source>index needs the folder to list</source>
        <translation>index braucht den Ordner, der aufgelistet werden soll</translation>
    </message>
    <message>
        <source>sources add needs a folder or a listing</source>
        <translation>sources add braucht einen Ordner oder eine Liste</translation>
    </message>
    <message>
        <source>%1 needs the description or the path of a source</source>
        <translation>%1 braucht die Beschreibung oder den Pfad einer Quelle</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>es gibt keine Option „%1“</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>there is no command</source>
        <translation>es fehlt ein Befehl</translation>
    </message>
    <message>
        <source>%1 does not know what to do with &quot;%2&quot;</source>
        <translation>%1 kann mit „%2“ nichts anfangen</translation>
    </message>
    <message>
        <source>words that start with a dash go behind --</source>
        <translation>Wörter, die mit einem Strich beginnen, kommen hinter --</translation>
    </message>
    <message>
        <source>%1 has no option &quot;%2&quot;</source>
        <translation>%1 hat keine Option „%2“</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are tsv, csv and json</source>
        <translation>es gibt kein Format „%1“; die Formate sind tsv, csv und json</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;; the fields are %2</source>
        <translation>es gibt kein Feld „%1“; die Felder sind %2</translation>
    </message>
    <message>
        <source>the value of --limit is a number of hits, not &quot;%1&quot;</source>
        <translation>der Wert von --limit ist eine Anzahl von Treffern, nicht „%1“</translation>
    </message>
    <message>
        <source>hits cannot be sorted by &quot;%1&quot;, only by match, volume, folder, name, size or modified</source>
        <translation>Treffer können nicht nach „%1“ sortiert werden, nur nach match, volume, folder, name, size oder modified</translation>
    </message>
    <message>
        <source>the value of --color is auto, always or never, not &quot;%1&quot;</source>
        <translation>der Wert von --color ist auto, always oder never, nicht „%1“</translation>
    </message>
    <message>
        <source>--reverse goes with --sort</source>
        <translation>--reverse gehört zu --sort</translation>
    </message>
    <message>
        <source>history does not know what to do with &quot;%1&quot;</source>
        <translation>history kann mit „%1“ nichts anfangen</translation>
    </message>
    <message>
        <source>--number goes with --restore</source>
        <translation>--number gehört zu --restore</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a version</source>
        <translation>„%1“ ist keine Nummer einer Fassung</translation>
    </message>
    <message>
        <source>--name is for one source at a time</source>
        <translation>--name gilt für eine einzige Quelle</translation>
    </message>
    <message>
        <source>sources move needs a source and its place</source>
        <translation>sources move braucht eine Quelle und ihren Platz</translation>
    </message>
    <message>
        <source>the place of sources move is a number from 1</source>
        <translation>der Platz bei sources move ist eine Zahl ab 1</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>es ist nicht genügend Speicher da</translation>
    </message>
    <message>
        <source>a file of the search cache was cut while it was searched. Please try again.</source>
        <translation>eine Datei des Suchcaches wurde gekürzt, während sie durchsucht wurde. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The data folder is %1</source>
        <translation>Der Datenordner ist %1</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a listing file</source>
        <translation>%1 ist weder ein Ordner noch eine Listendatei</translation>
    </message>
    <message>
        <source>the list has places 1 to %1</source>
        <translation>die Liste hat die Plätze 1 bis %1</translation>
    </message>
    <message>
        <source>there is no source &quot;%1&quot;; quorvin-cli sources shows them</source>
        <translation>es gibt keine Quelle „%1“; quorvin-cli sources zeigt sie</translation>
    </message>
    <message>
        <source>%1 sources are called &quot;%2&quot;; please name the path of one</source>
        <translation>%1 Quellen heißen „%2“; bitte nennen Sie den Pfad der einen</translation>
    </message>
    <message>
        <source>quorvin-cli refresh makes the listing</source>
        <translation>quorvin-cli refresh macht die Liste</translation>
    </message>
    <message>
        <source>options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>EXAMPLES</source>
        <translation>BEISPIELE</translation>
    </message>
    <message>
        <source>quorvin-cli [option] COMMAND ...</source>
        <translation>quorvin-cli [Option] BEFEHL ...</translation>
    </message>
    <message>
        <source>Quorvin Utility in the terminal: search and make catalogues of disks.</source>
        <translation>Quorvin Utility im Terminal: Kataloge von Datenträgern machen und durchsuchen.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>quorvin-cli COMMAND --help says more of each; man quorvin-cli says all.</source>
        <translation>quorvin-cli BEFEHL --help sagt mehr zu jedem; man quorvin-cli sagt alles.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>User commands</source>
        <translation>Dienstprogramme</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>BEZEICHNUNG</translation>
    </message>
    <message>
        <source>search and make listings of disks, drives and shares</source>
        <translation>Listen von Datenträgern, Laufwerken und Freigaben machen und durchsuchen</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>Finds files in listings, the catalogues of disks and folders, and makes such listings.</source>
        <translation>Findet Dateien in Listen, den Katalogen von Datenträgern und Ordnern, und macht solche Listen.</translation>
    </message>
    <message>
        <source>It uses the same settings and folders as the window,</source>
        <translation>Es benutzt dieselben Einstellungen und Ordner wie das Fenster,</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <translation>BEFEHLE</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>SIEHE AUCH</translation>
    </message>
    <message>
        <source>Run-time error &apos;%1&apos;: %2</source>
        <translation>Laufzeitfehler &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Launch Error: %1%2</source>
        <translation>Fehler beim Öffnen: %1%2</translation>
    </message>
    <message>
        <source>Search in these hits:</source>
        <translation>In diesen Treffern suchen:</translation>
    </message>
    <message>
        <source>No hit holds all of these words.</source>
        <translation>Kein Treffer enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>This page shows its hits with a script of its own; please allow it to run.</source>
        <translation>Diese Seite zeigt ihre Treffer mit einem eigenen Skript; bitte erlauben Sie, dass es läuft.</translation>
    </message>
    <message>
        <source>row %1, column %2 of a source table</source>
        <translation>Zeile %1, Spalte %2 einer Quellentabelle</translation>
    </message>
    <message>
        <source>The language of texts: German, English, French or Spanish.</source>
        <translation>Die Sprache der Texte: Deutsch, Englisch, Französisch oder Spanisch.</translation>
    </message>
    <message>
        <source>very long outlines</source>
        <translation>sehr lange Umrisse</translation>
    </message>
    <message>
        <source>There are more than %1 files</source>
        <translation>Es gibt mehr als %1 Dateien</translation>
    </message>
    <message>
        <source>comparing names and sizes</source>
        <translation>Namen und Größen werden verglichen</translation>
    </message>
    <message>
        <source>Files on one volume only: %1, of %2 altogether</source>
        <translation>Dateien auf nur einem Datenträger: %1, zusammen %2</translation>
    </message>
    <message>
        <source>Files with copies: %1. Copies beyond the first: %2, of %3 altogether</source>
        <translation>Dateien mit Kopien: %1. Kopien außer der ersten: %2, zusammen %3</translation>
    </message>
    <message>
        <source>Left out, since their exact size is not known: %1</source>
        <translation>Ausgelassen, da ihre genaue Größe nicht bekannt ist: %1</translation>
    </message>
    <message>
        <source>Files that are on one volume only, instead of copies</source>
        <translation>Dateien auf nur einem Datenträger statt Kopien</translation>
    </message>
    <message>
        <source>Write only how much it is, for each volume</source>
        <translation>Nur schreiben, wie viel es ist, je Datenträger</translation>
    </message>
    <message>
        <source>The same for each folder</source>
        <translation>Dasselbe je Ordner</translation>
    </message>
    <message>
        <source>Files must match WORDS by more than this percentage; 50</source>
        <translation>Dateien müssen über diesem Prozentsatz liegen; 50</translation>
    </message>
    <message>
        <source>Files of no bytes too</source>
        <translation>Auch leere Dateien</translation>
    </message>
    <message>
        <source>text (default), tsv, csv or json</source>
        <translation>text (Vorgabe), tsv, csv oder json</translation>
    </message>
    <message>
        <source>Start tsv and csv with the titles of the columns</source>
        <translation>tsv und csv mit den Spaltentiteln beginnen</translation>
    </message>
    <message>
        <source>Write no more than N of them</source>
        <translation>Höchstens N davon schreiben</translation>
    </message>
    <message>
        <source>What takes up most space</source>
        <translation>Was am meisten Platz belegt</translation>
    </message>
    <message>
        <source>How much each disk has that no other one has</source>
        <translation>Was jeder Datenträger als einziger hat</translation>
    </message>
    <message>
        <source>Photos without a backup</source>
        <translation>Fotos ohne Sicherung</translation>
    </message>
    <message>
        <source>Of these two listings</source>
        <translation>Von diesen beiden Listen</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. With --single a file is shown if no other volume has it, even where its own volume has it twice. Which files are the same is always decided among all listings: with WORDS, groups are shown of which a search for these words finds one file. Without a LISTING, the user&apos;s own sources are looked through.</source>
        <translation>Ein Datenträger ist, was eine Liste so nennt; zwei Listen haben nie denselben. Mit --single wird eine Datei gezeigt, wenn kein anderer Datenträger sie hat, auch wenn ihr eigener sie zweimal hat. Welche Dateien gleich sind, entscheidet sich immer unter allen Listen: Mit WORDS werden Gruppen gezeigt, von denen eine Suche nach diesen Wörtern eine Datei findet. Ohne LISTING werden die eigenen Quellen des Benutzers durchgesehen.</translation>
    </message>
    <message>
        <source>Left out are files without a size of their own in the listing, which are counted at the end, and empty ones unless --empty is given. Listings hold the first 65 characters of a name; longer names that differ only behind them count as the same. A size that a listing has rounded cannot be told from one that is exact.</source>
        <translation>Ausgelassen werden Dateien ohne eigene Größe in der Liste, die am Ende gezählt werden, und leere, außer mit --empty. Listen enthalten die ersten 65 Zeichen eines Namens; längere Namen, die sich erst dahinter unterscheiden, gelten als gleich. Eine Größe, die eine Liste gerundet hat, ist von einer genauen nicht zu unterscheiden.</translation>
    </message>
    <message>
        <source>Tsv and csv have a row for each place, json an object for each group; a group&apos;s name is that of its first file or folder. The last line on standard error has the sum. --limit counts groups, files or sums, whichever are written.</source>
        <translation>Tsv und csv haben eine Zeile für jeden Ort, json ein Objekt für jede Gruppe; der Name einer Gruppe ist der ihrer ersten Datei oder ihres ersten Ordners. Die letzte Zeile auf der Standardfehlerausgabe hat die Summe. --limit zählt Gruppen, Dateien oder Summen, je nachdem, was geschrieben wird.</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies of %2: %3</source>
        <translation>
            <numerusform>%1 Kopie von %2: %3</numerusform>
            <numerusform>%1 Kopien von %2: %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 equal folders of %2 with %3 files: %4</source>
        <translation>
            <numerusform>%1 gleicher Ordner von %2 mit %3 Dateien: %4</numerusform>
            <numerusform>%1 gleiche Ordner von %2 mit %3 Dateien: %4</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are text, tsv, csv and json</source>
        <translation>es gibt kein Format „%1“; die Formate sind text, tsv, csv und json</translation>
    </message>
    <message>
        <source>there are sums for volumes or for folders, not for both at once</source>
        <translation>Summen gibt es für Datenträger oder für Ordner, nicht für beide zugleich</translation>
    </message>
    <message>
        <source>%1 searched</source>
        <translation>%1 durchsucht</translation>
    </message>
    <message>
        <source>Find copies of files, and what is on one volume only</source>
        <translation>Kopien finden, und was nur auf einem Datenträger ist</translation>
    </message>
    <message>
        <source>%1 was changed while it was read. Please try again</source>
        <translation>%1 wurde geändert, während es gelesen wurde. Bitte versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>the pattern may hold \n or \0 only at its end, and no other escapes than \t</source>
        <translation>das Muster darf \n oder \0 nur am Ende enthalten und sonst nur \t</translation>
    </message>
    <message>
        <source>the pattern ends within a directive</source>
        <translation>das Muster endet mitten in einer Anweisung</translation>
    </message>
    <message>
        <source>the pattern holds no path: %p, %P, or %h and %f</source>
        <translation>das Muster enthält keinen Pfad: %p, %P oder %h und %f</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing of a column; an example is path=1,size=3,date=Modified</source>
        <translation>„%1“ sagt nichts über eine Spalte; ein Beispiel ist path=1,size=3,date=Modified</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are %2</source>
        <translation>es gibt kein Format „%1“; die Formate sind %2</translation>
    </message>
    <message>
        <source>the value of --dates is dmy or mdy, not &quot;%1&quot;</source>
        <translation>der Wert von --dates ist dmy oder mdy, nicht „%1“</translation>
    </message>
    <message>
        <source>there is no encoding &quot;%1&quot;; the encodings are %2</source>
        <translation>es gibt keine Kodierung „%1“; die Kodierungen sind %2</translation>
    </message>
    <message>
        <source>a list from standard input needs --label, the name of its volume</source>
        <translation>eine Liste von der Standardeingabe braucht --label, den Namen ihres Datenträgers</translation>
    </message>
    <message>
        <source>%1 is there already; nothing was imported of %2</source>
        <translation>%1 ist schon da; von %2 wurde nichts importiert</translation>
    </message>
    <message>
        <source>%1: %2 lines</source>
        <translation>%1: %2 Zeilen</translation>
    </message>
    <message>
        <source>%1 is no list of a known format; %2 says which of these it has: %3</source>
        <translation>%1 ist keine Liste in einem bekannten Format; %2 sagt, welches von diesen es ist: %3</translation>
    </message>
    <message>
        <source>%1 names no file and no folder; no listing was made</source>
        <translation>%1 nennt keine Datei und keinen Ordner; es wurde keine Liste erstellt</translation>
    </message>
    <message>
        <source>%1: read as %2; %3 has %4 files, %5 folders</source>
        <translation>%1: gelesen als %2; %3 hat %4 Dateien, %5 Ordner</translation>
    </message>
    <message>
        <source>files without an exact size: %1</source>
        <translation>Dateien ohne genaue Größe: %1</translation>
    </message>
    <message>
        <source>files without a date: %1</source>
        <translation>Dateien ohne Datum: %1</translation>
    </message>
    <message>
        <source>dates in which day and month may have changed places, left out (see %1): %2</source>
        <translation>Daten, in denen Tag und Monat vertauscht sein können, ausgelassen (siehe %1): %2</translation>
    </message>
    <message>
        <source>names that came again, of which the last one counts: %1</source>
        <translation>Namen, die noch einmal kamen und von denen der letzte zählt: %1</translation>
    </message>
    <message>
        <source>names that a listing cannot hold, left out: %1</source>
        <translation>Namen, die eine Liste nicht enthalten kann, ausgelassen: %1</translation>
    </message>
    <message>
        <source>lines whose bytes are no UTF-8 (see %1): %2</source>
        <translation>Zeilen, deren Bytes kein UTF-8 sind (siehe %1): %2</translation>
    </message>
    <message>
        <source>lines that were not understood: %1</source>
        <translation>nicht verstandene Zeilen: %1</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>import needs --output, the folder for the listings</source>
        <translation>import braucht --output, den Ordner für die neuen Listen</translation>
    </message>
    <message>
        <source>--label is for one list at a time</source>
        <translation>--label gilt für eine einzige Liste</translation>
    </message>
    <message>
        <source>Make listings of lists that other programs wrote</source>
        <translation>Listen anderer Programme übernehmen</translation>
    </message>
    <message>
        <source>The folder for the listings</source>
        <translation>Der Ordner für die neuen Listen</translation>
    </message>
    <message>
        <source>The lists&apos; format; default: as recognised</source>
        <translation>Das Format der Listen; sonst wie erkannt</translation>
    </message>
    <message>
        <source>The volume&apos;s name; default: the file&apos;s name</source>
        <translation>Der Name des Datenträgers; sonst der der Datei</translation>
    </message>
    <message>
        <source>Where paths start that do not start with a slash</source>
        <translation>Wo Pfade anfangen, die ohne Schrägstrich beginnen</translation>
    </message>
    <message>
        <source>The pattern of find -printf</source>
        <translation>Das Muster von find -printf</translation>
    </message>
    <message>
        <source>The columns of a table: path=1,size=3,date=Changed</source>
        <translation>Spalten einer Tabelle: path=1,size=3,date=Changed</translation>
    </message>
    <message>
        <source>The sizes of du are bytes (du -ab)</source>
        <translation>Die Größen von du sind Bytes (du -ab)</translation>
    </message>
    <message>
        <source>Dates like 3/4/04: dmy (3 April) or mdy (4 March)</source>
        <translation>Daten wie 3/4/04: dmy (3. April), mdy (4. März)</translation>
    </message>
    <message>
        <source>When the list was made, for dates without a year</source>
        <translation>Wann die Liste entstand, für Daten ohne Jahr</translation>
    </message>
    <message>
        <source>Replace listings that are there</source>
        <translation>Vorhandene Listen ersetzen</translation>
    </message>
    <message>
        <source>Report only what could not be read</source>
        <translation>Nur melden, was nicht gelesen werden konnte</translation>
    </message>
    <message>
        <source>Import what ls -lR wrote of a CD</source>
        <translation>Importieren, was ls -lR von einer CD schrieb</translation>
    </message>
    <message>
        <source>List what is in an archive</source>
        <translation>Auflisten, was in einem Archiv ist</translation>
    </message>
    <message>
        <source>A list in a form of your own</source>
        <translation>Eine Liste in eigener Form</translation>
    </message>
    <message>
        <source>Writes a listing for each FILE into the folder of --output, under the file&apos;s name and with the ending .txt. The format is recognised from the first lines and reported on standard error. Lines that were not understood are counted there, and the first of them shown; the exit status is 2 then. A FILE may be a pipe; - is standard input.</source>
        <translation>Schreibt für jede FILE eine Liste dieses Programms in den Ordner von --output, unter dem Namen der Datei und mit der Endung .txt. Das Format wird an den ersten Zeilen erkannt und auf stderr gemeldet. Nicht verstandene Zeilen werden dort gezählt und die ersten davon gezeigt; der Rückgabewert ist dann 2. Eine FILE darf eine Pipe sein; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>What a list does not tell exactly is left out: rounded sizes, sizes in blocks, dates without a year unless --made is given, and dates that may be of two days unless --dates is given or other dates of the list decide. Such files have the size -1 or the zero date.</source>
        <translation>Was eine Liste nicht genau sagt, wird ausgelassen: gerundete Größen, Größen in Blöcken, Daten ohne Jahr, wenn --made fehlt, und Daten, die zwei Tage meinen können, wenn weder --dates noch andere Daten der Liste entscheiden. Solche Dateien haben die Größe -1 oder das Nulldatum.</translation>
    </message>
    <message>
        <source>import needs the lists to import</source>
        <translation>import braucht die Listen, die zu importieren sind</translation>
    </message>
    <message>
        <source>A listing was changed while it was read. Please try again</source>
        <translation>Eine Liste wurde geändert, während sie gelesen wurde. Bitte noch einmal versuchen</translation>
    </message>
    <message>
        <source>one of the two is no listing, since it is not plain text</source>
        <translation>eine der beiden ist keine Liste, da sie kein reiner Text ist</translation>
    </message>
    <message>
        <source>comparing</source>
        <translation>es wird verglichen</translation>
    </message>
    <message>
        <source>Compared below %1 and %2, since they have no folder in common</source>
        <translation>Verglichen unterhalb von %1 und %2, da sie keinen Ordner gemeinsam haben</translation>
    </message>
    <message>
        <source>Added: %1. Removed: %2. Changed: %3. Moved: %4. The same: %5</source>
        <translation>Hinzugekommen: %1. Weggefallen: %2. Geändert: %3. Verschoben: %4. Gleich: %5</translation>
    </message>
    <message>
        <source>%1 (before: %2)</source>
        <translation>%1 (vorher: %2)</translation>
    </message>
    <message>
        <source>Say what differs between listings, versions and folders</source>
        <translation>Unterschiede zwischen Listen, Versionen und Ordnern zeigen</translation>
    </message>
    <message>
        <source>EARLIER is this version in the listing history</source>
        <translation>EARLIER ist diese Version im Verlauf der Liste</translation>
    </message>
    <message>
        <source>EARLIER is the version of that day, such as 2004-03-31</source>
        <translation>EARLIER ist die Version dieses Tages, etwa 2004-03-31</translation>
    </message>
    <message>
        <source>Write only how much it is, for each folder</source>
        <translation>Nur schreiben, wie viel es ist, für jeden Ordner</translation>
    </message>
    <message>
        <source>Write neither sums nor progress to standard error</source>
        <translation>Weder Summen noch Fortschritt auf der Fehlerausgabe</translation>
    </message>
    <message>
        <source>What the last rescan changed</source>
        <translation>Was das letzte Einlesen geändert hat</translation>
    </message>
    <message>
        <source>What has changed in the folder since then</source>
        <translation>Was sich seitdem im Ordner geändert hat</translation>
    </message>
    <message>
        <source>What has changed since March</source>
        <translation>Was sich seit März geändert hat</translation>
    </message>
    <message>
        <source>Whether a copy has everything</source>
        <translation>Ob eine Kopie alles hat</translation>
    </message>
    <message>
        <source>EARLIER and LATER are listings, or folders, which are listed as they are now. Without LATER the listing EARLIER is compared with its newest complete version in the listing history, or with the one that --number or --on names. A listing in the data folder may be called by its description.</source>
        <translation>EARLIER und LATER sind Listen, oder Ordner, die so aufgelistet werden, wie sie jetzt sind. Ohne LATER wird die Liste EARLIER mit ihrer neuesten vollständigen Version im Verlauf verglichen, oder mit der, die --number oder --on nennt. Eine Liste im Datenordner kann mit ihrer Beschreibung genannt werden.</translation>
    </message>
    <message>
        <source>Lines start with + for a file that was added, - for one that was removed, * for one that has another size or date, and &gt; for one that was moved, with the place where it was in the line below. A file is taken to be moved if one with the same name and size is gone elsewhere; if there are several, one with the same date is preferred. The name of a volume counts only where a listing has more than one, and if the two have no folder in common, they are compared below the folders that have all of their files.</source>
        <translation>Zeilen beginnen mit + für eine Datei, die hinzugekommen ist, - für eine, die weggefallen ist, * für eine mit anderer Größe oder anderem Datum und &gt; für eine, die verschoben wurde; die Zeile darunter sagt, wo sie war. Eine Datei gilt als verschoben, wenn anderswo eine mit gleichem Namen und gleicher Größe weggefallen ist; sind es mehrere, so geht eine mit gleichem Datum vor. Der Name eines Datenträgers zählt nur, wenn eine Liste mehrere hat, und haben die beiden keinen Ordner gemeinsam, so werden sie unterhalb der Ordner verglichen, in denen alle ihre Dateien liegen.</translation>
    </message>
    <message>
        <source>The exit status is 0 if there is no difference, 1 if there is one, and 2 if something went wrong. Listings hold the first 65 characters of a name, and dates to the second.</source>
        <translation>Der Rückgabewert ist 0, wenn es keinen Unterschied gibt, 1, wenn es einen gibt, und 2, wenn etwas schiefging. Listen enthalten die ersten 65 Zeichen eines Namens und Daten auf die Sekunde genau.</translation>
    </message>
    <message>
        <source>there is neither a listing nor a folder %1</source>
        <translation>es gibt weder eine Liste noch einen Ordner %1</translation>
    </message>
    <message>
        <source>no version of %1 that is kept is as old as %2</source>
        <translation>keine aufbewahrte Version von %1 ist so alt wie %2</translation>
    </message>
    <message>
        <source>compare needs a listing or a folder</source>
        <translation>compare braucht eine Liste oder einen Ordner</translation>
    </message>
    <message>
        <source>the value of --on is a day such as 2004-03-31, not &quot;%1&quot;</source>
        <translation>der Wert von --on ist ein Tag wie 2004-03-31, nicht „%1“</translation>
    </message>
    <message>
        <source>compare does not know what to do with &quot;%1&quot;</source>
        <translation>compare weiß nicht, was mit „%1“ zu tun ist</translation>
    </message>
    <message>
        <source>--number and --on both say which version is meant</source>
        <translation>--number und --on sagen beide, welche Version gemeint ist</translation>
    </message>
    <message>
        <source>looking for copies</source>
        <translation>Suchen nach Kopien</translation>
    </message>
    <message>
        <source>&amp;Copies...</source>
        <translation>&amp;Kopien...</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Wasted</source>
        <translation>Verschwendet</translation>
    </message>
    <message numerus="yes">
        <source>%1 (equal folders, %2 files)</source>
        <translation>
            <numerusform>%1 (gleiche Ordner, %2 Datei)</numerusform>
            <numerusform>%1 (gleiche Ordner, %2 Dateien)</numerusform>
        </translation>
    </message>
    <message>
        <source>What wastes space</source>
        <translation>Was Platz verschwendet</translation>
    </message>
    <message>
        <source>What wastes space, by volume</source>
        <translation>Was Platz verschwendet, nach Datenträgern</translation>
    </message>
    <message>
        <source>What wastes space, by folder</source>
        <translation>Was Platz verschwendet, nach Ordnern</translation>
    </message>
    <message>
        <source>On one volume only</source>
        <translation>Nur auf einem Datenträger</translation>
    </message>
    <message>
        <source>On one volume only, by volume</source>
        <translation>Nur auf einem Datenträger, nach Datenträgern</translation>
    </message>
    <message>
        <source>On one volume only, by folder</source>
        <translation>Nur auf einem Datenträger, nach Ordnern</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Empty files, too</source>
        <translation>Auch &amp;leere Dateien</translation>
    </message>
    <message>
        <source>Files that have the same name and the same size to the byte, in all listings together. Nothing is deleted or changed.</source>
        <translation>Dateien mit gleichem Namen und auf das Byte gleicher Größe, in allen Listen zusammen. Nichts wird gelöscht oder geändert.</translation>
    </message>
    <message>
        <source>Words that limit what is shown</source>
        <translation>Wörter, die beschränken, was angezeigt wird</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>Was angezeigt wird</translation>
    </message>
    <message>
        <source>What can be shown</source>
        <translation>Was angezeigt werden kann</translation>
    </message>
    <message>
        <source>Only files with these words; empty for all</source>
        <translation>Nur Dateien mit diesen Wörtern; leer für alle</translation>
    </message>
    <message>
        <source>Only what a search for these words finds is shown. What has a copy is still looked up everywhere.</source>
        <translation>Angezeigt wird nur, was eine Suche nach diesen Wörtern findet. Was eine Kopie hat, wird trotzdem überall nachgesehen.</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>&amp;Wörter:</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Anzeigen:</translation>
    </message>
    <message>
        <source>Stopped. Only all listings together tell what has copies.</source>
        <translation>Angehalten. Nur alle Listen zusammen sagen, was Kopien hat.</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>Comparing names and sizes</source>
        <translation>Namen und Größen werden verglichen</translation>
    </message>
    <message>
        <source>Only the %1 largest of %2 rows are shown.</source>
        <translation>Nur die %1 größten von %2 Zeilen werden angezeigt.</translation>
    </message>
    <message>
        <source>and one more message</source>
        <translation>und eine weitere Meldung</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more messages</source>
        <translation>
            <numerusform>und %1 weitere Meldung</numerusform>
            <numerusform>und %1 weitere Meldungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is not there now, or its listing does not say where.</source>
        <translation>%1 ist jetzt nicht da, oder die Liste sagt nicht, wo.</translation>
    </message>
    <message>
        <source>importing lists</source>
        <translation>das Importieren von Listen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>names that hold a mark of listings, so that a search misreads their lines: %1</source>
        <translation>Namen mit einer Markierung von Listen, deren Zeilen eine Suche darum falsch liest: %1</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Erstellt von</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>Hin&amp;zufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>du told b&amp;ytes</source>
        <translation>du nannte B&amp;ytes</translation>
    </message>
    <message>
        <source>Re&amp;place listings of the same name</source>
        <translation>&amp;Gleichnamige Listen ersetzen</translation>
    </message>
    <message>
        <source>&amp;Search in the listings from now on</source>
        <translation>In den Listen ab jetzt s&amp;uchen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>As recognised</source>
        <translation>Wie erkannt</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Tag zuerst</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Monat zuerst</translation>
    </message>
    <message>
        <source>Lists that other programs wrote, of a CD or of an archive, become listings. The lists themselves stay as they are.</source>
        <translation>Verzeichnisse, die andere Programme etwa von einer CD oder einem Archiv geschrieben haben, werden zu Listen. Sie selbst bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Lists to import</source>
        <translation>Zu importierende Verzeichnisse</translation>
    </message>
    <message>
        <source>The program that made the lists</source>
        <translation>Das Programm, das die Verzeichnisse erstellt hat</translation>
    </message>
    <message>
        <source>Pattern of find -printf, or columns of a table</source>
        <translation>Muster von find -printf oder Spalten einer Tabelle</translation>
    </message>
    <message>
        <source>Encoding of the lists</source>
        <translation>Kodierung der Verzeichnisse</translation>
    </message>
    <message>
        <source>Order of day and month</source>
        <translation>Reihenfolge von Tag und Monat</translation>
    </message>
    <message>
        <source>The day on which the lists were made</source>
        <translation>Der Tag, an dem die Verzeichnisse erstellt wurden</translation>
    </message>
    <message>
        <source>Where paths start that do not start with /</source>
        <translation>Wo Pfade beginnen, die nicht mit / beginnen</translation>
    </message>
    <message>
        <source>Name of the volume and of its listing</source>
        <translation>Name des Datenträgers und seiner Liste</translation>
    </message>
    <message>
        <source>Folder for the listings</source>
        <translation>Ordner für die Listen</translation>
    </message>
    <message>
        <source>Browse for a folder</source>
        <translation>Einen Ordner suchen</translation>
    </message>
    <message>
        <source>What has come of it</source>
        <translation>Was daraus geworden ist</translation>
    </message>
    <message>
        <source>Programs that make lists</source>
        <translation>Programme, die Verzeichnisse erstellen</translation>
    </message>
    <message>
        <source>Encodings</source>
        <translation>Kodierungen</translation>
    </message>
    <message>
        <source>Orders of day and month</source>
        <translation>Reihenfolgen von Tag und Monat</translation>
    </message>
    <message>
        <source>The pattern that find was given, such as %s %T@ %p\n, or which column of a table holds what, such as path=1,size=3</source>
        <translation>Das Muster, das find erhielt, etwa %s %T@ %p\n, oder welche Spalte einer Tabelle was enthält, etwa path=1,size=3</translation>
    </message>
    <message>
        <source>A day such as 2004-01-15. ls leaves the year of recent dates out.</source>
        <translation>Ein Tag wie 2004-01-15. ls lässt bei jüngeren Daten das Jahr weg.</translation>
    </message>
    <message>
        <source>For paths that do not start with /, such as /media/cd</source>
        <translation>Für Pfade, die nicht mit / beginnen, etwa /media/cd</translation>
    </message>
    <message>
        <source>Empty for the name of the list. For one list at a time.</source>
        <translation>Leer für den Namen des Verzeichnisses. Für nur ein Verzeichnis auf einmal.</translation>
    </message>
    <message>
        <source>For the lists of du -ab. Without it the sizes of du are blocks, and left out.</source>
        <translation>Für Verzeichnisse von du -ab. Ohne das sind die Größen von du Blöcke und werden ausgelassen.</translation>
    </message>
    <message>
        <source>&amp;Made by:</source>
        <translation>Erstellt &amp;von:</translation>
    </message>
    <message>
        <source>Patter&amp;n:</source>
        <translation>&amp;Muster:</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>&amp;Dates:</source>
        <translation>Da&amp;ten:</translation>
    </message>
    <message>
        <source>Made &amp;on:</source>
        <translation>Erstellt &amp;am:</translation>
    </message>
    <message>
        <source>Pat&amp;hs in:</source>
        <translation>&amp;Pfade in:</translation>
    </message>
    <message>
        <source>&amp;Volume:</source>
        <translation>Datent&amp;räger:</translation>
    </message>
    <message>
        <source>&amp;Listings to:</source>
        <translation>&amp;Listen nach:</translation>
    </message>
    <message>
        <source>Stopped. The list that was being read has no listing.</source>
        <translation>Angehalten. Das Verzeichnis, das gerade gelesen wurde, hat keine Liste.</translation>
    </message>
    <message>
        <source>the value of %1 is a day such as 2004-01-15, not &quot;%2&quot;</source>
        <translation>der Wert von %1 ist ein Tag wie 2004-01-15, nicht „%2“</translation>
    </message>
    <message>
        <source>As the list tells</source>
        <translation>Wie das Verzeichnis sagt</translation>
    </message>
    <message>
        <source>%1 is a file of the program; nothing was imported of %2</source>
        <translation>%1 ist eine Datei des Programms; aus %2 wurde nichts importiert</translation>
    </message>
    <message>
        <source>Whether 03/04/2004 is in March or in April. Other dates of the list may tell.</source>
        <translation>Ob 03/04/2004 im März oder im April liegt. Andere Daten des Verzeichnisses sagen es vielleicht.</translation>
    </message>
    <message>
        <source>&amp;Look into files at hand</source>
        <translation>Vorhandene Dateien &amp;einlesen</translation>
    </message>
    <message>
        <source>Reads the files in own folders that are there now, and takes those apart that hold different things. That takes as long as reading them all.</source>
        <translation>Liest die Dateien in eigenen Ordnern, die jetzt da sind, und trennt die, die Verschiedenes enthalten. Das dauert so lange, wie sie alle zu lesen.</translation>
    </message>
    <message>
        <source>Looking into files: %1 of %2</source>
        <translation>Dateien werden eingelesen: %1 von %2</translation>
    </message>
    <message>
        <source>Looked into: %1, of %2 altogether. Files that hold something else in spite of the same name and size: %3. Not at hand, so judged by name and size: %4</source>
        <translation>Eingelesen: %1, zusammen %2. Dateien, die trotz gleichen Namens und gleicher Größe etwas anderes enthalten: %3. Nicht vorhanden, daher nach Name und Größe beurteilt: %4</translation>
    </message>
    <message>
        <source>looking into files: %1 of %2</source>
        <translation>Dateien werden eingelesen: %1 von %2</translation>
    </message>
    <message>
        <source>Look into the files that are at hand</source>
        <translation>Die vorhandenen Dateien einlesen</translation>
    </message>
    <message>
        <source>Files are the same that have the same name, whatever its case, and the same size to the byte. With --content, those in own folders that are there now are read, too, and are not the same where they hold something else; a file that is not at hand stays with the first of its group. The groups that waste most space come first, each with a line for every place. Folders that are equal as a whole, with all that is in them, are one group, and their files are not listed again. Their own names may differ.</source>
        <translation>Gleich sind Dateien mit demselben Namen, bis auf Groß- und Kleinschreibung, und derselben Größe auf das Byte. Mit --content werden auch die gelesen, die in eigenen Ordnern jetzt da sind; enthalten sie Verschiedenes, sind sie nicht gleich. Eine Datei, die nicht vorhanden ist, bleibt bei der ersten ihrer Gruppe. Die Gruppen, die am meisten Platz verschwenden, kommen zuerst, jede mit einer Zeile für jeden Ort. Ordner, die als Ganzes gleich sind, mit allem darin, sind eine Gruppe, und ihre Dateien werden nicht noch einmal aufgeführt. Ihre eigenen Namen dürfen verschieden sein.</translation>
    </message>
    <message>
        <source>Co&amp;mpare...</source>
        <translation>Ver&amp;gleichen...</translation>
    </message>
    <message>
        <source>One of the two is no listing, since it is not plain text.</source>
        <translation>Eines von beiden ist keine Liste, da es kein reiner Text ist.</translation>
    </message>
    <message>
        <source>Left out, since they could not be read: %1</source>
        <translation>Ausgelassen, da nicht lesbar: %1</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugekommen</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 fortgefallen</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>%1 moved</source>
        <translation>%1 verschoben</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugekommen</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>fortgefallen</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>moved</source>
        <translation>verschoben</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Moved from</source>
        <translation>Verschoben aus</translation>
    </message>
    <message>
        <source>Size earlier</source>
        <translation>Größe früher</translation>
    </message>
    <message>
        <source>Date earlier</source>
        <translation>Datum früher</translation>
    </message>
    <message>
        <source>Size later</source>
        <translation>Größe später</translation>
    </message>
    <message>
        <source>Date later</source>
        <translation>Datum später</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Alle Änderungen</translation>
    </message>
    <message>
        <source>What was added</source>
        <translation>Was hinzukam</translation>
    </message>
    <message>
        <source>What was removed</source>
        <translation>Was fortfiel</translation>
    </message>
    <message>
        <source>What has changed</source>
        <translation>Was sich änderte</translation>
    </message>
    <message>
        <source>What was moved</source>
        <translation>Was verschoben wurde</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>Ver&amp;gleichen</translation>
    </message>
    <message>
        <source>%1 (incomplete)</source>
        <translation>%1 (unvollständig)</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>What came, went, changed and was moved from the earlier to the later one. Nothing is deleted or changed.</source>
        <translation>Was vom früheren zum späteren Stand hinzukam, fortfiel, sich änderte und verschoben wurde. Nichts wird gelöscht oder geändert.</translation>
    </message>
    <message>
        <source>What is compared: the earlier side</source>
        <translation>Was verglichen wird: die frühere Seite</translation>
    </message>
    <message>
        <source>Which state of the earlier side</source>
        <translation>Welcher Stand der früheren Seite</translation>
    </message>
    <message>
        <source>What is compared: the later side</source>
        <translation>Was verglichen wird: die spätere Seite</translation>
    </message>
    <message>
        <source>Which state of the later side</source>
        <translation>Welcher Stand der späteren Seite</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>What can be chosen</source>
        <translation>Was gewählt werden kann</translation>
    </message>
    <message>
        <source>&amp;Earlier:</source>
        <translation>&amp;Früher:</translation>
    </message>
    <message>
        <source>State ea&amp;rlier:</source>
        <translation>S&amp;tand früher:</translation>
    </message>
    <message>
        <source>&amp;Later:</source>
        <translation>S&amp;päter:</translation>
    </message>
    <message>
        <source>State l&amp;ater:</source>
        <translation>Stan&amp;d später:</translation>
    </message>
    <message>
        <source>There is nothing to compare yet.</source>
        <translation>Es gibt noch nichts zu vergleichen.</translation>
    </message>
    <message>
        <source>the listing as it is</source>
        <translation>die Liste, wie sie ist</translation>
    </message>
    <message>
        <source>the folder as it is now</source>
        <translation>der Ordner, wie er jetzt ist</translation>
    </message>
    <message>
        <source>Stopped. What has changed is only known at the end.</source>
        <translation>Angehalten. Was sich geändert hat, steht erst am Ende fest.</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Vergleicht</translation>
    </message>
    <message>
        <source>plan needs the words to find, in one argument, or - for a list</source>
        <translation>plan braucht die gesuchten Wörter, in einem einzigen Argument, oder - für eine Liste</translation>
    </message>
    <message>
        <source>standard input can be the list or a listing, not both</source>
        <translation>die Standardeingabe kann die Wunschliste oder eine Liste des Katalogs sein, nicht beides</translation>
    </message>
    <message>
        <source>%1 can be read once only, and a plan for words needs to read it twice</source>
        <translation>%1 lässt sich nur einmal lesen, und ein Plan für Wörter muss es zweimal lesen</translation>
    </message>
    <message>
        <source>there is nothing to copy, so no script</source>
        <translation>es gibt nichts zu kopieren, also kein Skript</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Volumes to insert: %1. To copy: %2</source>
        <translation>Einzulegende Datenträger: %1. Zu kopieren: %2</translation>
    </message>
    <message>
        <source>There is no way with fewer volumes</source>
        <translation>Mit weniger Datenträgern geht es nicht</translation>
    </message>
    <message>
        <source>There may be a way with fewer volumes: more than %1 have files in common, so each next one was chosen greedily, for having most of what was left</source>
        <translation>Vielleicht geht es mit weniger Datenträgern: Mehr als %1 haben Dateien gemeinsam, deshalb wurde als nächster immer der gewählt, der am meisten vom Rest hat (gieriges Verfahren)</translation>
    </message>
    <message>
        <source>Not found:</source>
        <translation>Nicht gefunden:</translation>
    </message>
    <message>
        <source>Not there: %1</source>
        <translation>Nicht da: %1</translation>
    </message>
    <message>
        <source>The folder where it is now (nothing: leave it out):</source>
        <translation>Der Ordner, in dem er jetzt ist (nichts: auslassen):</translation>
    </message>
    <message>
        <source>Nobody answers. Please save this script and start it in a terminal.</source>
        <translation>Niemand antwortet. Bitte speichern Sie dieses Skript und starten Sie es in einem Terminal.</translation>
    </message>
    <message>
        <source>None of the files is in %1.</source>
        <translation>In %1 ist keine der Dateien.</translation>
    </message>
    <message>
        <source>rsync is needed, and is not installed.</source>
        <translation>rsync wird gebraucht und ist nicht installiert.</translation>
    </message>
    <message>
        <source>Not everything was copied.</source>
        <translation>Nicht alles wurde kopiert.</translation>
    </message>
    <message>
        <source>Please insert volume %1 of %2: %3. It was listed at %4; %5 to copy.</source>
        <translation>Bitte Datenträger %1 von %2 einlegen: %3. Aufgelistet wurde er unter %4; zu kopieren: %5.</translation>
    </message>
    <message>
        <source>Say which volumes to fetch for files that are wanted</source>
        <translation>Sagen, welche Datenträger für Dateien zu holen sind</translation>
    </message>
    <message>
        <source>text (default) or json</source>
        <translation>text (Vorgabe) oder json</translation>
    </message>
    <message>
        <source>Write a script that copies the files with rsync</source>
        <translation>Ein Skript schreiben, das mit rsync kopiert</translation>
    </message>
    <message>
        <source>Where that script copies them</source>
        <translation>Wohin dieses Skript kopiert</translation>
    </message>
    <message>
        <source>The fewest disks for all hits of a search</source>
        <translation>Die wenigsten Datenträger für alle Treffer einer Suche</translation>
    </message>
    <message>
        <source>A script that asks for each disk and copies; start it with: sh fetch.sh</source>
        <translation>Ein Skript, das nach jedem Datenträger fragt und kopiert; starten mit: sh fetch.sh</translation>
    </message>
    <message>
        <source>Only for some hits</source>
        <translation>Nur für einige Treffer</translation>
    </message>
    <message>
        <source>For a list, one name a line</source>
        <translation>Für eine Wunschliste, ein Name je Zeile</translation>
    </message>
    <message>
        <source>Writes the fewest volumes that hold all wanted files, in the order in which to insert them, with what to copy from each. Wanted are the hits of a search for WORDS, as find makes it; or, with - in place of WORDS, the files of a list on standard input: a line each, with JSON as find writes it, or with a name. A name alone means every file of that name.</source>
        <translation>Schreibt die wenigsten Datenträger, die alle gewünschten Dateien enthalten, in der Reihenfolge, in der sie einzulegen sind, mit dem, was von jedem zu kopieren ist. Gewünscht sind die Treffer einer Suche nach WORDS, wie find sie macht; oder, mit - anstelle von WORDS, die Dateien einer Liste von der Standardeingabe: je eine Zeile, mit JSON, wie find es schreibt, oder mit einem Namen. Ein Name allein meint jede Datei dieses Namens.</translation>
    </message>
    <message>
        <source>Files are the same that have the same name, whatever its case, and the same size to the byte; nobody looks into them, and any one will do. A file without a size of its own in the listing is the same as no other. Listings hold the first 65 characters of a name; longer names that differ only behind them count as the same.</source>
        <translation>Gleich sind Dateien mit demselben Namen, bis auf Groß- und Kleinschreibung, und derselben Größe auf das Byte; in sie hinein sieht niemand, und jede von ihnen genügt. Eine Datei ohne eigene Größe in der Liste ist keiner anderen gleich. Listen enthalten die ersten 65 Zeichen eines Namens; längere Namen, die sich erst dahinter unterscheiden, gelten als gleich.</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. What only one volume has, and what one has that another has too, is settled first. Where of the rest up to 20 volumes have files in common, all combinations are tried, and there is no way with fewer. Of more, each next one is chosen greedily, for having most of what is left; the plan says so, and there may be a way with fewer.</source>
        <translation>Ein Datenträger ist, was eine Liste so nennt; zwei Listen haben nie denselben. Was nur ein Datenträger hat und was einer hat, das ein anderer auch hat, wird zuerst geklärt. Wo vom Rest bis zu 20 Datenträger Dateien gemeinsam haben, werden alle Kombinationen versucht, und mit weniger geht es nicht. Von mehr wird als nächster immer der gewählt, der am meisten vom Rest hat; der Plan sagt das, und vielleicht geht es mit weniger.</translation>
    </message>
    <message>
        <source>With words, listings are read twice, so they cannot come from a pipe. The script is for any POSIX shell. It asks for each volume and for the folder where it is now, finds the listing&apos;s folders there, and copies into a folder for each volume. A file that is not there is told, and the others are copied.</source>
        <translation>Mit Wörtern werden Listen zweimal gelesen, können also nicht aus einer Pipe kommen. Das Skript ist für jede POSIX-Shell. Es fragt nach jedem Datenträger und nach dem Ordner, in dem er jetzt ist, findet dort die Ordner der Liste und kopiert in einen Ordner für jeden Datenträger. Eine Datei, die nicht da ist, wird genannt, und die anderen werden kopiert.</translation>
    </message>
    <message>
        <source>there is no format &quot;%1&quot;; the formats are text and json</source>
        <translation>es gibt kein Format „%1“; die Formate sind text und json</translation>
    </message>
    <message>
        <source>--script and --to FOLDER go together</source>
        <translation>--script und --to ORDNER gehören zusammen</translation>
    </message>
    <message>
        <source>a plan is written in a format or as a script, not as both</source>
        <translation>ein Plan wird in einem Format oder als Skript geschrieben, nicht als beides</translation>
    </message>
    <message>
        <source>Only the first %1 of %2 rows are shown.</source>
        <translation>Nur die ersten %1 von %2 Zeilen werden angezeigt.</translation>
    </message>
    <message>
        <source>If it is dumb, find colours nothing either.</source>
        <translation>Ist es dumb, färbt find auch nichts.</translation>
    </message>
    <message>
        <source>there are no folders of your own yet; quorvin-cli sources add FOLDER adds one</source>
        <translation>es gibt noch keine eigenen Ordner; quorvin-cli sources add ORDNER fügt einen hinzu</translation>
    </message>
    <message>
        <source>there is nothing to search yet. Name listings after the words, or add folders or lists with quorvin-cli sources add</source>
        <translation>es gibt noch nichts zu durchsuchen. Nennen Sie Listen hinter den Wörtern, oder fügen Sie mit quorvin-cli sources add Ordner oder Listen hinzu</translation>
    </message>
    <message>
        <source>%1 is a database of plocate, which has to be installed to read it</source>
        <translation>%1 ist eine Datenbank von plocate, das installiert sein muss, um sie zu lesen</translation>
    </message>
    <message>
        <source>plocate could not read %1: %2</source>
        <translation>plocate konnte %1 nicht lesen: %2</translation>
    </message>
    <message>
        <source>%1 is a folder, not a listing; quorvin-cli index makes a listing of a folder</source>
        <translation>%1 ist ein Ordner, keine Liste; quorvin-cli index macht aus einem Ordner eine Liste</translation>
    </message>
    <message>
        <source>the titles of the columns are written or not; --header and --no-header contradict</source>
        <translation>die Überschriften der Spalten kommen oder nicht; --header und --no-header widersprechen sich</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>%1 was not replaced, since it could not be kept in the listing history: %2</source>
        <translation>%1 wurde nicht ersetzt, weil der bisherige Inhalt nicht im Listenverlauf aufbewahrt werden konnte: %2</translation>
    </message>
    <message>
        <source>The lists&apos; encoding, such as cp850; default: utf-8</source>
        <translation>Kodierung der Verzeichnisse, etwa cp850; sonst utf-8</translation>
    </message>
    <message>
        <source>the system does not know the encoding &quot;%1&quot;</source>
        <translation>das System kennt die Kodierung „%1“ nicht</translation>
    </message>
    <message>
        <source>not recognised</source>
        <translation>nicht erkannt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Listed</source>
        <translation>Erfasst</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message numerus="yes">
        <source>%1 days ago</source>
        <translation>
            <numerusform>vor %1 Tag</numerusform>
            <numerusform>vor %1 Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 months ago</source>
        <translation>
            <numerusform>vor %1 Monat</numerusform>
            <numerusform>vor %1 Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 years ago</source>
        <translation>
            <numerusform>vor %1 Jahr</numerusform>
            <numerusform>vor %1 Jahren</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 volume</source>
        <translation>%1 Datenträger</translation>
    </message>
    <message numerus="yes">
        <source>%1 volumes</source>
        <translation>
            <numerusform>%1 Datenträger</numerusform>
            <numerusform>%1 Datenträger</numerusform>
        </translation>
    </message>
    <message>
        <source>Listings of own folders, the lists of sources, the listing history and notes on volumes, unless another folder is chosen in the window under File, Options, or the program was copied somewhere as it is: then they are beside it. quorvin-cli sources names the folder.</source>
        <translation>Listen der eigenen Ordner, die Quellenlisten, der Listenverlauf und Notizen zu Datenträgern, wenn im Fenster unter Datei, Optionen kein anderer Ordner gewählt ist. Wurde das Programm einfach irgendwohin kopiert, liegen sie neben ihm. quorvin-cli sources nennt den Ordner.</translation>
    </message>
    <message>
        <source>volumes cannot be sorted by &quot;%1&quot;, only by volume, files, size, newest, listed, free or note</source>
        <translation>Datenträger lassen sich nicht nach &quot;%1&quot; sortieren, nur nach volume, files, size, newest, listed, free oder note</translation>
    </message>
    <message>
        <source>--note goes with the name of a volume</source>
        <translation>--note gehört zum Namen eines Datenträgers</translation>
    </message>
    <message>
        <source>there is no volume &quot;%1&quot;; quorvin-cli volumes shows those that there are</source>
        <translation>es gibt keinen Datenträger &quot;%1&quot;; quorvin-cli volumes zeigt, welche es gibt</translation>
    </message>
    <message>
        <source>several listings have a volume &quot;%1&quot;; name one of them behind it: %2</source>
        <translation>mehrere Listen haben einen Datenträger &quot;%1&quot;; nennen Sie eine davon dahinter: %2</translation>
    </message>
    <message>
        <source>%1 is no file, so nothing can be noted on its volumes</source>
        <translation>%1 ist keine Datei, deshalb lässt sich zu ihren Datenträgern nichts notieren</translation>
    </message>
    <message>
        <source>Show what is on each volume, or note where it is kept</source>
        <translation>Zeigen, was auf Datenträgern ist, notieren, wo sie sind</translation>
    </message>
    <message>
        <source>volume, files, size, newest, listed, free or note</source>
        <translation>volume, files, size, newest, listed, free oder note</translation>
    </message>
    <message>
        <source>Note this on the volume named in place of WORDS</source>
        <translation>Dies zum Datenträger notieren, der statt WORDS steht</translation>
    </message>
    <message>
        <source>The fullest one first</source>
        <translation>Der vollste zuerst</translation>
    </message>
    <message>
        <source>Which disks have photos, and how many</source>
        <translation>Welche Datenträger Fotos haben, und wie viele</translation>
    </message>
    <message>
        <source>Note where a disk is kept</source>
        <translation>Notieren, wo ein Datenträger liegt</translation>
    </message>
    <message>
        <source>Take the note away</source>
        <translation>Die Notiz entfernen</translation>
    </message>
    <message>
        <source>Writes a line for each volume of the listings: how many files it has and their bytes, when the newest of them was changed, how long ago its listing was written, and, where the folder of an own source is there now, how much is free on its drive. Behind the volume&apos;s name stands your own note. With WORDS, only files count that a search for these words finds. Without a LISTING, the user&apos;s own sources are looked through.</source>
        <translation>Schreibt für jeden Datenträger der Listen eine Zeile: wie viele Dateien er hat und ihre Bytes, wann die neueste davon geändert wurde, wie lange es her ist, dass seine Liste geschrieben wurde, und, wo der Ordner einer eigenen Quelle jetzt da ist, wie viel auf seinem Laufwerk frei ist. Hinter dem Namen steht Ihre eigene Notiz. Mit WORDS zählen nur Dateien, die eine Suche nach diesen Wörtern findet. Ohne LISTING werden die eigenen Quellen durchgesehen.</translation>
    </message>
    <message>
        <source>A volume is what a listing calls so; two listings never share one. Bytes and dates are those of files with a size of their own in the listing. Volumes without what they are sorted by come last. In json, the newest file has its folder and name, and what is not known has no key.</source>
        <translation>Ein Datenträger ist, was eine Liste so nennt; zwei Listen teilen sich nie einen. Bytes und Daten sind die der Dateien, die in der Liste eine eigene Größe haben. Datenträger, denen fehlt, wonach sortiert wird, kommen zuletzt. In json hat die neueste Datei ihren Ordner und Namen, und was nicht bekannt ist, hat keinen Schlüssel.</translation>
    </message>
    <message>
        <source>--note writes nothing but keeps TEXT, which replaces an earlier note; it is shown in the window too. Where several listings have a volume of that name, name the listing behind it.</source>
        <translation>--note schreibt nichts, sondern merkt sich TEXT, was eine frühere Notiz ersetzt; sie wird auch im Fenster gezeigt. Haben mehrere Listen einen Datenträger dieses Namens, so nennen Sie die Liste dahinter.</translation>
    </message>
    <message>
        <source>A note has at most %1 characters</source>
        <translation>Eine Notiz hat höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Notiz: %1</translation>
    </message>
    <message>
        <source>looking at volumes</source>
        <translation>Ansehen der Datenträger</translation>
    </message>
    <message>
        <source>&amp;Volumes...</source>
        <translation>&amp;Datenträger...</translation>
    </message>
    <message>
        <source>Note on %1</source>
        <translation>Notiz zu %1</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Words that limit what is counted</source>
        <translation>Wörter, die einschränken, was zählt</translation>
    </message>
    <message>
        <source>Edit &amp;Note</source>
        <translation>&amp;Notiz bearbeiten</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>&amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Stopped. What is on a volume is known when its listing has been read.</source>
        <translation>Angehalten. Was auf einem Datenträger ist, ist erst bekannt, wenn seine Liste gelesen ist.</translation>
    </message>
    <message>
        <source>%1 is not there now. Note: %2</source>
        <translation>%1 ist jetzt nicht da. Notiz: %2</translation>
    </message>
    <message>
        <source>The note was not kept: %1</source>
        <translation>Die Notiz wurde nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>the name of %1 is no text</source>
        <translation>der Name von %1 ist kein Text</translation>
    </message>
    <message>
        <source>there are no checksums of %1; quorvin-cli index --checksums makes them</source>
        <translation>zu %1 gibt es keine Prüfsummen; quorvin-cli index --checksums nimmt sie auf</translation>
    </message>
    <message>
        <source>%1 does not tell which folder it is of; please name the folder</source>
        <translation>%1 verrät nicht, von welchem Ordner es ist; bitte nennen Sie den Ordner</translation>
    </message>
    <message>
        <source>Put the SHA-256 of each file beside it; see verify</source>
        <translation>Die SHA-256 jeder Datei daneben ablegen; siehe verify</translation>
    </message>
    <message>
        <source>The checksums are in a file beside the listing, with .sha256 behind its name; sha256sum -c reads it in the folder. When it is made again, a file that has the size and date that the listing told until then keeps its checksum and is not read.</source>
        <translation>Die Prüfsummen stehen in einer Datei neben der Liste, mit .sha256 hinter ihrem Namen; sha256sum -c liest sie in dem Ordner. Wird sie neu gemacht, behält eine Datei, die Größe und Datum der bisherigen Liste hat, ihre Prüfsumme und wird nicht gelesen.</translation>
    </message>
    <message>
        <source>find, copies, plan and volumes: there were hits. compare: nothing differs. verify: all files are as they were. Others: all was done.</source>
        <translation>find, copies, plan und volumes: Es gab Treffer. compare: Nichts weicht ab. verify: Alle Dateien sind, wie sie waren. Andere: Alles wurde getan.</translation>
    </message>
    <message>
        <source>find, copies, plan and volumes: there were none. compare: something differs. verify: some files are not as they were. history: there is no earlier version.</source>
        <translation>find, copies, plan und volumes: Es gab keine. compare: Etwas weicht ab. verify: Einige Dateien sind nicht, wie sie waren. history: Es gibt keine frühere Fassung.</translation>
    </message>
    <message>
        <source>No checksum: %1</source>
        <translation>Keine Prüfsumme: %1</translation>
    </message>
    <message>
        <source>checksums: %1 of %2 files, %3 of %4</source>
        <translation>Prüfsummen: %1 von %2 Dateien, %3 von %4</translation>
    </message>
    <message>
        <source>verify needs a listing, or the description of an own folder</source>
        <translation>verify braucht eine Liste oder die Beschreibung eines eigenen Ordners</translation>
    </message>
    <message>
        <source>the commands are find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history and cache</source>
        <translation>die Befehle sind find, copies, compare, plan, volumes, index, verify, import, refresh, sources, history und cache</translation>
    </message>
    <message>
        <source>--checksums goes with --output: the checksums are put beside the listing</source>
        <translation>--checksums gehört zu --output: Die Prüfsummen werden neben der Liste abgelegt</translation>
    </message>
    <message>
        <source>--folders-only lists no files that --checksums could be of</source>
        <translation>--folders-only listet keine Dateien auf, von denen --checksums sein könnte</translation>
    </message>
    <message>
        <source>verify does not know what to do with &quot;%1&quot;</source>
        <translation>verify weiß mit „%1“ nichts anzufangen</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>%1 minutes left</source>
        <translation>
            <numerusform>noch %1 Minute</numerusform>
            <numerusform>noch %1 Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped. The next verification of these checksums goes on here.</source>
        <translation>Angehalten. Die nächste Prüfung dieser Prüfsummen macht hier weiter.</translation>
    </message>
    <message>
        <source>%1 of %2 files, %3 of %4</source>
        <translation>%1 von %2 Dateien, %3 von %4</translation>
    </message>
    <message>
        <source>Of these, %1 files were read before it was stopped. --restart reads them again.</source>
        <translation>Davon wurden %1 Dateien gelesen, bevor angehalten wurde. --restart liest sie noch einmal.</translation>
    </message>
    <message>
        <source>Lines of the checksums that were not understood: %1</source>
        <translation>Zeilen der Prüfsummen, die nicht verstanden wurden: %1</translation>
    </message>
    <message>
        <source>As they were: %1. Rotten: %2. Lost: %3. Changed: %4. Added: %5. Not read: %6</source>
        <translation>Wie sie waren: %1. Verdorben: %2. Verloren: %3. Geändert: %4. Neu: %5. Nicht gelesen: %6</translation>
    </message>
    <message>
        <source>Say which files do not hold any more what they held</source>
        <translation>Sagen, welche Dateien nicht mehr dasselbe enthalten</translation>
    </message>
    <message>
        <source>Begin again, also after one that was stopped</source>
        <translation>Von vorn beginnen, auch nach einer angehaltenen</translation>
    </message>
    <message>
        <source>Write an object for each of them, as JSON</source>
        <translation>Für jede ein Objekt schreiben, als JSON</translation>
    </message>
    <message>
        <source>Take the checksums</source>
        <translation>Die Prüfsummen aufnehmen</translation>
    </message>
    <message>
        <source>Read the disk again, years later</source>
        <translation>Den Datenträger wieder lesen, Jahre später</translation>
    </message>
    <message>
        <source>Where it is mounted elsewhere</source>
        <translation>Wenn er woanders eingehängt ist</translation>
    </message>
    <message>
        <source>Holds the files of a folder against the checksums beside its LISTING, which index --checksums has made. An own folder may be called by its description. Lines start with ! for a file that has the size and date of the listing and holds something else, so that its medium has lost it; - for one that is gone; * for one that has another size or date; + for one that has no checksum; and ? for one that cannot be read, with the reason behind it.</source>
        <translation>Hält die Dateien eines Ordners gegen die Prüfsummen neben seiner LISTING, die index --checksums aufgenommen hat. Ein eigener Ordner darf mit seiner Beschreibung genannt werden. Zeilen beginnen mit ! bei einer Datei, die Größe und Datum der Liste hat und etwas anderes enthält, sodass der Datenträger sie verloren hat; mit - bei einer, die weg ist; mit * bei einer mit anderer Größe oder anderem Datum; mit + bei einer ohne Prüfsumme; und mit ? bei einer, die nicht gelesen werden kann, mit dem Grund dahinter.</translation>
    </message>
    <message>
        <source>A file with another size or date was changed on purpose, and is not read. Where the listing does not tell these, one that holds something else counts as changed.</source>
        <translation>Eine Datei mit anderer Größe oder anderem Datum wurde absichtlich geändert und wird nicht gelesen. Wo die Liste diese nicht nennt, gilt eine, die etwas anderes enthält, als geändert.</translation>
    </message>
    <message>
        <source>One that is stopped, by Ctrl-C or by a crash, goes on where it was when it is started again. The exit status is 0 if all files are as they were, 1 if some are not, and 2 if something could not be read.</source>
        <translation>Eine angehaltene Prüfung, durch Strg-C oder einen Absturz, macht beim nächsten Start dort weiter, wo sie war. Der Rückgabewert ist 0, wenn alle Dateien sind, wie sie waren, 1, wenn einige es nicht sind, und 2, wenn etwas nicht gelesen werden konnte.</translation>
    </message>
    <message>
        <source>Show what is searched, or change it: add, remove, move</source>
        <translation>Quellen zeigen oder ändern: add, remove, move</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Ohne Datum</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Bis %1</translation>
    </message>
    <message>
        <source>From %1 on</source>
        <translation>Ab %1</translation>
    </message>
    <message>
        <source>Files right here</source>
        <translation>Dateien direkt hier</translation>
    </message>
    <message>
        <source>%1, %2, %3%. Mostly %4, %5</source>
        <translation>%1, %2, %3 %. Meist %4, %5</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Neu lesen</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Space Map</source>
        <translation>Platzkarte</translation>
    </message>
    <message>
        <source>Space Map of %1</source>
        <translation>Platzkarte von %1</translation>
    </message>
    <message>
        <source>Space map</source>
        <translation>Platzkarte</translation>
    </message>
    <message>
        <source>What the colours show</source>
        <translation>Was die Farben zeigen</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>C&amp;olours:</source>
        <translation>&amp;Farben:</translation>
    </message>
    <message>
        <source>&amp;Search Here</source>
        <translation>Hier &amp;suchen</translation>
    </message>
    <message>
        <source>Stopped. The map is drawn when everything has been read.</source>
        <translation>Angehalten. Die Karte wird gezeichnet, wenn alles gelesen ist.</translation>
    </message>
    <message>
        <source>All volumes</source>
        <translation>Alle Datenträger</translation>
    </message>
    <message>
        <source>There is nothing that takes up space.</source>
        <translation>Es gibt nichts, was Platz braucht.</translation>
    </message>
    <message>
        <source>Space &amp;Map</source>
        <translation>&amp;Platzkarte</translation>
    </message>
    <message>
        <source>Empty for all files</source>
        <translation>Leer für alle Dateien</translation>
    </message>
    <message>
        <source>Shows as rectangles what takes up space on all volumes</source>
        <translation>Zeigt als Rechtecke, was auf allen Datenträgern Platz braucht</translation>
    </message>
    <message>
        <source>planning what to fetch</source>
        <translation>das Planen, was zu holen ist</translation>
    </message>
    <message>
        <source>Fetch P&amp;lan...</source>
        <translation>Ho&amp;lplan...</translation>
    </message>
    <message>
        <source>A plan can be made for at most %1 hits.</source>
        <translation>Ein Plan ist für höchstens %1 Treffer möglich.</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Plan Again</source>
        <translation>Neu &amp;planen</translation>
    </message>
    <message>
        <source>Save Te&amp;xt...</source>
        <translation>&amp;Text sichern...</translation>
    </message>
    <message>
        <source>Save &amp;Script...</source>
        <translation>S&amp;kript sichern...</translation>
    </message>
    <message>
        <source>Fetch Plan</source>
        <translation>Holplan</translation>
    </message>
    <message>
        <source>Volumes to insert, and what to copy from them</source>
        <translation>Einzulegende Datenträger, und was von ihnen zu kopieren ist</translation>
    </message>
    <message>
        <source>A script for a terminal that asks for each volume and copies its files with rsync</source>
        <translation>Ein Skript für ein Terminal, das nach jedem Datenträger fragt und seine Dateien mit rsync kopiert</translation>
    </message>
    <message>
        <source>Insert these volumes, one after another:</source>
        <translation>Legen Sie nacheinander diese Datenträger ein:</translation>
    </message>
    <message>
        <source>Stopped. Only all listings together tell which volumes are needed.</source>
        <translation>Angehalten. Nur alle Listen zusammen sagen, welche Datenträger nötig sind.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Save Plan</source>
        <translation>Plan sichern</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Skript sichern</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gesichert: %1</translation>
    </message>
    <message>
        <source>Nothing was saved: %1</source>
        <translation>Nichts wurde gesichert: %1</translation>
    </message>
    <message>
        <source>A search is for a folder. Choose one in the volume.</source>
        <translation>Gesucht wird in einem Ordner. Wählen Sie einen auf dem Datenträger.</translation>
    </message>
    <message>
        <source>Changed or rotten: %1. The earlier listing was made after its checksums, so it does not tell.</source>
        <translation>Geändert oder verdorben: %1. Die frühere Liste wurde nach ihren Prüfsummen erstellt und sagt es daher nicht.</translation>
    </message>
    <message>
        <source>The listing was made after the checksums, so it does not tell rot from change; quorvin-cli index --checksums renews both.</source>
        <translation>Die Liste wurde nach den Prüfsummen erstellt und sagt daher nicht, was verdorben und was geändert ist; quorvin-cli index --checksums erneuert beides.</translation>
    </message>
</context>
<context>
    <name>quorvin::Texts::Texts</name>
    <message>
        <source>Being looked for...</source>
        <translation>Wird gesucht...</translation>
    </message>
</context>
</TS>

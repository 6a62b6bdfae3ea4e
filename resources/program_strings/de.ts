<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Background</name>
    <message>
        <source>the system gives this program no thread, because too many processes run for this user or in this container; end some, or have the limit raised (ulimit -u), and try again</source>
        <translation>das System gibt diesem Programm keinen Thread, weil für diesen Benutzer oder in diesem Container zu viele Prozesse laufen; beenden Sie einige oder lassen Sie die Grenze anheben (ulimit -u) und versuchen Sie es noch einmal</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>it is not installed beside the program</source>
        <translation>ist nicht neben dem Programm installiert</translation>
    </message>
    <message>
        <source>“%1” is not a whole number from %2 to %3</source>
        <translation>„%1“ ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>its value is empty</source>
        <translation>der Wert ist leer</translation>
    </message>
    <message>
        <source>“%1” is not NAME=VALUE, NAME or noNAME</source>
        <translation>„%1“ hat nicht die Form NAME=VALUE, NAME oder noNAME</translation>
    </message>
    <message>
        <source>“%1” is not a list of pages such as 1-3,7,9-</source>
        <translation>„%1“ ist keine Liste von Seiten wie 1-3,7,9-</translation>
    </message>
    <message>
        <source>it takes NAME=FILE; the secret itself stands in the file</source>
        <translation>erwartet wird NAME=FILE; das Geheimnis selbst steht in der Datei</translation>
    </message>
    <message>
        <source>a secret’s name has only letters, digits, - and _</source>
        <translation>der Name eines Geheimnisses besteht nur aus Buchstaben, Ziffern, - und _</translation>
    </message>
    <message>
        <source>the secret %1 is given twice</source>
        <translation>das Geheimnis %1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>print to this queue</source>
        <translation>in diese Warteschlange drucken</translation>
    </message>
    <message>
        <source>print this many copies, 1 to 9999</source>
        <translation>so viele Exemplare drucken, 1 bis 9999</translation>
    </message>
    <message>
        <source>set an option of the device, or media, sides,
landscape and others that lp has; NAME alone
switches one on, noNAME off</source>
        <translation>eine Option des Geräts setzen, oder media,
sides, landscape und andere wie bei lp; NAME
allein schaltet eine ein, noNAME aus</translation>
    </message>
    <message>
        <source>print only these pages: 1-3,7,9-</source>
        <translation>nur diese Seiten drucken: 1-3,7,9-</translation>
    </message>
    <message>
        <source>call the job so</source>
        <translation>den Auftrag so nennen</translation>
    </message>
    <message>
        <source>show a device without a queue</source>
        <translation>ein Gerät ohne Warteschlange zeigen</translation>
    </message>
    <message>
        <source>show the sample device and document</source>
        <translation>das Beispielgerät mit Beispieldokument zeigen</translation>
    </message>
    <message>
        <source>begin with this preset</source>
        <translation>mit dieser Voreinstellung beginnen</translation>
    </message>
    <message>
        <source>write what was set as a preset when printing or when
the script ends</source>
        <translation>was eingestellt wurde, beim Drucken oder am Ende des
Skripts als Voreinstellung schreiben</translation>
    </message>
    <message>
        <source>begin with the settings in this ticket</source>
        <translation>mit den Einstellungen dieses Tickets beginnen</translation>
    </message>
    <message>
        <source>write all settings when printing or when the
script ends</source>
        <translation>beim Drucken oder am Ende des Skripts alle
Einstellungen schreiben</translation>
    </message>
    <message>
        <source>drive the dialog; - is standard input</source>
        <translation>den Dialog steuern; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>print when the script has ended</source>
        <translation>drucken, wenn das Skript zu Ende ist</translation>
    </message>
    <message>
        <source>show nothing; without a script, print at once</source>
        <translation>nichts anzeigen; ohne Skript sofort drucken</translation>
    </message>
    <message>
        <source>speak this language instead of the desktop’s</source>
        <translation>diese Sprache statt der der Arbeitsumgebung</translation>
    </message>
    <message>
        <source>wait this long for the print server, or for a
pipe named as file, 1 to 3600 (30)</source>
        <translation>so lange auf den Druckserver oder auf eine als Datei
genannte Pipe warten, 1 bis 3600 (30)</translation>
    </message>
    <message>
        <source>list the queues and end</source>
        <translation>die Warteschlangen auflisten und enden</translation>
    </message>
    <message>
        <source>list what scripts can reach, and end</source>
        <translation>auflisten, was Skripte erreichen, und enden</translation>
    </message>
    <message>
        <source>print the version and end</source>
        <translation>die Version ausgeben und enden</translation>
    </message>
    <message>
        <source>list the commands of scripts and end</source>
        <translation>die Skriptbefehle auflisten und enden</translation>
    </message>
    <message>
        <source>print this and end</source>
        <translation>diese Hilfe ausgeben und enden</translation>
    </message>
    <message>
        <source>there is no such option</source>
        <translation>eine solche Option gibt es nicht</translation>
    </message>
    <message>
        <source>-o %1 says something else; leave out one of them</source>
        <translation>-o %1 besagt etwas anderes; lassen Sie eines davon weg</translation>
    </message>
    <message>
        <source>it brings a device of its own; leave out --ppd</source>
        <translation>bringt ein eigenes Gerät mit; lassen Sie --ppd weg</translation>
    </message>
    <message>
        <source>%1 shows a device without a queue; leave out one of them</source>
        <translation>%1 zeigt ein Gerät ohne Warteschlange; lassen Sie eines davon weg</translation>
    </message>
    <message>
        <source>it prints after a script: add --script FILE, or use --no-window to print at once</source>
        <translation>druckt nach einem Skript: Geben Sie --script FILE dazu an oder verwenden Sie --no-window, um sofort zu drucken</translation>
    </message>
    <message>
        <source>a device without a queue cannot print; add --to DIR</source>
        <translation>ein Gerät ohne Warteschlange kann nicht drucken; geben Sie --to DIR dazu an</translation>
    </message>
    <message>
        <source>standard input is the document already; name one of them as a file</source>
        <translation>die Standardeingabe ist bereits das Dokument; nennen Sie eines von beiden als Datei</translation>
    </message>
    <message>
        <source>a document has a name</source>
        <translation>ein Dokument hat einen Namen</translation>
    </message>
    <message>
        <source>it takes no value; “%1” is too much</source>
        <translation>nimmt keinen Wert; „%1“ ist zu viel</translation>
    </message>
    <message>
        <source>its value %1 is missing</source>
        <translation>der Wert %1 fehlt</translation>
    </message>
    <message>
        <source>
Later beats earlier: the device’s defaults, the queue’s, the site’s preset,
--preset, --ticket-in, -o, --script.

Ends with 0 printed, 1 failed, 2 wrong usage or script, 3 settings of -o or a
script in conflict or not offered, 4 destination or PPD unknown, unreachable or
unreadable, 6 ticket missing or invalid, 130 cancelled.
</source>
        <translation>
Späteres gilt vor Früherem: Standardwerte des Geräts, der Warteschlange, der
Voreinstellung für alle, --preset, --ticket-in, -o, --script.

Endet mit 0 gedruckt, 1 fehlgeschlagen, 2 falscher Aufruf oder falsches Skript,
3 Einstellungen aus -o oder Skript im Konflikt oder nicht angeboten, 4 Ziel oder
PPD unbekannt, nicht erreichbar oder nicht lesbar, 6 Ticket fehlt oder ist
ungültig, 130 abgebrochen.
</translation>
    </message>
    <message>
        <source>%1 is the document itself; it would be lost</source>
        <translation>%1 ist das Dokument selbst; es ginge verloren</translation>
    </message>
    <message>
        <source>%1 is the script itself; it would be lost</source>
        <translation>%1 ist das Skript selbst; es ginge verloren</translation>
    </message>
    <message>
        <source>%1 is the device’s PPD itself; it would be lost</source>
        <translation>%1 ist die PPD-Datei des Geräts selbst; sie ginge verloren</translation>
    </message>
    <message>
        <source>%1 is a secret itself; it would be lost</source>
        <translation>%1 ist selbst ein Geheimnis; es ginge verloren</translation>
    </message>
    <message>
        <source>%1 is the ticket that is read itself; it would be lost</source>
        <translation>%1 ist das Ticket selbst, das gelesen wird; es ginge verloren</translation>
    </message>
    <message>
        <source>%1 is what --ticket-out writes itself; it would be lost</source>
        <translation>%1 ist das, was --ticket-out selbst schreibt; es ginge verloren</translation>
    </message>
    <message>
        <source>%1 is what --ticket-out writes</source>
        <translation>%1 ist das, was --ticket-out schreibt</translation>
    </message>
    <message>
        <source>print several files as one job</source>
        <translation>mehrere Dateien als einen Auftrag drucken</translation>
    </message>
    <message>
        <source>standard input can be read only once</source>
        <translation>die Standardeingabe lässt sich nur einmal lesen</translation>
    </message>
    <message>
        <source>Usage: kelvo-print [OPTION]... [FILE]...

Shows the print dialog for the FILEs, or for standard input (-): PDF,
PostScript, text or pictures. Each is a job of its own.

</source>
        <translation>Aufruf: kelvo-print [OPTION]... [FILE]...

Zeigt den Druckdialog für die Dateien FILE oder für die Standardeingabe (-):
PDF, PostScript, Text oder Bilder. Jede ist ein eigener Auftrag.

</translation>
    </message>
    <message>
        <source>a secret for the script, in a file of mode 0600;
DOCUMENT is the password of a PDF, DOCUMENT2
that of the second file</source>
        <translation>ein Geheimnis für das Skript, in einer Datei mit den
Rechten 0600; DOCUMENT ist das Passwort eines PDF,
DOCUMENT2 das der zweiten Datei</translation>
    </message>
    <message>
        <source>a PDF file has room for one job: add --join, or name a folder</source>
        <translation>eine PDF-Datei nimmt einen Auftrag auf: Fügen Sie --join hinzu, oder nennen Sie einen Ordner</translation>
    </message>
    <message>
        <source>write a PDF of what would be printed; with the
name of a folder, document.pdf, options and
ticket.plist into it, or into a folder there for
each of several jobs</source>
        <translation>ein PDF des zu Druckenden schreiben; mit dem
Namen eines Ordners document.pdf, options und
ticket.plist hinein, bei mehreren Aufträgen in
einen Ordner für jeden</translation>
    </message>
    <message>
        <source>what is written to a file is not printed, and there is nothing to wait for; leave out --to</source>
        <translation>was in eine Datei geschrieben wird, wird nicht gedruckt, und es gibt nichts, worauf zu warten wäre; lassen Sie --to weg</translation>
    </message>
    <message>
        <source>end when the job is printed, and say what becomes
of it</source>
        <translation>erst enden, wenn der Auftrag gedruckt ist, und
sagen, was aus ihm wird</translation>
    </message>
    <message>
        <source>how urgent the job is, 1 to 100</source>
        <translation>wie dringend der Auftrag ist, 1 bis 100</translation>
    </message>
    <message>
        <source>when the server prints it: immediate, hold, HH:MM
(UTC), evening and others that lp has</source>
        <translation>wann der Server ihn druckt: immediate, hold,
HH:MM (UTC), evening und andere wie bei lp</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>%1 is a %2 and takes no text</source>
        <translation>%1 (%2) nimmt keinen Text</translation>
    </message>
    <message>
        <source>%1 does not take the whole text</source>
        <translation>%1 nimmt nicht den ganzen Text</translation>
    </message>
    <message>
        <source>use %1</source>
        <comment>script commands</comment>
        <translation>verwenden Sie %1</translation>
    </message>
    <message>
        <source>%1 is a %2 and cannot be dragged</source>
        <translation>%1 (%2) kann nicht gezogen werden</translation>
    </message>
    <message>
        <source>%1 is a %2 and cannot be clicked</source>
        <translation>%1 (%2) kann nicht angeklickt werden</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 kann nur gelesen werden</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3, not to %4</source>
        <translation>%1 reicht von %2 bis %3, nicht bis %4</translation>
    </message>
    <message>
        <source>%1 is a %2 and is no list</source>
        <translation>%1 (%2) ist keine Liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 has %n row(s), not %2</source>
        <translation>
            <numerusform>%1 hat %n Zeile, nicht %2</numerusform>
            <numerusform>%1 hat %n Zeilen, nicht %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is a %2 and cannot be checked</source>
        <translation>%1 (%2) kann nicht angekreuzt werden</translation>
    </message>
    <message>
        <source>%1 is a %2 and has no number to set</source>
        <translation>%1 (%2) hat keine Zahl zum Einstellen</translation>
    </message>
    <message>
        <source>%1 is a %2 and is no time field</source>
        <translation>%1 (%2) ist kein Zeitfeld</translation>
    </message>
    <message>
        <source>This character cannot be used here.</source>
        <translation>Dieses Zeichen kann hier nicht verwendet werden.</translation>
    </message>
    <message>
        <source>There is no room for more here.</source>
        <translation>Für mehr ist hier kein Platz.</translation>
    </message>
    <message numerus="yes">
        <source>At most %n characters fit here.</source>
        <translation>
            <numerusform>Hier passt höchstens %n Zeichen hinein.</numerusform>
            <numerusform>Hier passen höchstens %n Zeichen hinein.</numerusform>
        </translation>
    </message>
    <message>
        <source>it takes at most %2 characters</source>
        <translation>möglich sind höchstens %2 Zeichen</translation>
    </message>
    <message>
        <source>it takes %1 to %2 characters</source>
        <translation>möglich sind %1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>it takes only digits</source>
        <translation>möglich sind nur Ziffern</translation>
    </message>
    <message>
        <source>it takes at most %2 digits</source>
        <translation>möglich sind höchstens %2 Ziffern</translation>
    </message>
    <message>
        <source>it takes %1 to %2 digits</source>
        <translation>möglich sind %1 bis %2 Ziffern</translation>
    </message>
    <message>
        <source>it takes only characters of “%3”</source>
        <translation>möglich sind nur Zeichen aus „%3“</translation>
    </message>
    <message>
        <source>it takes at most %2 characters of “%3”</source>
        <translation>möglich sind höchstens %2 Zeichen aus „%3“</translation>
    </message>
    <message>
        <source>it takes %1 to %2 characters of “%3”</source>
        <translation>möglich sind %1 bis %2 Zeichen aus „%3“</translation>
    </message>
    <message>
        <source>it takes only ASCII characters</source>
        <translation>möglich sind nur ASCII-Zeichen</translation>
    </message>
    <message>
        <source>it takes at most %2 ASCII characters</source>
        <translation>möglich sind höchstens %2 ASCII-Zeichen</translation>
    </message>
    <message>
        <source>it takes %1 to %2 ASCII characters</source>
        <translation>möglich sind %1 bis %2 ASCII-Zeichen</translation>
    </message>
    <message>
        <source>it takes only characters of a certain set</source>
        <translation>möglich sind nur bestimmte Zeichen</translation>
    </message>
    <message>
        <source>it takes at most %2 characters of a certain set</source>
        <translation>möglich sind höchstens %2 bestimmte Zeichen</translation>
    </message>
    <message>
        <source>it takes %1 to %2 characters of a certain set</source>
        <translation>möglich sind %1 bis %2 bestimmte Zeichen</translation>
    </message>
    <message>
        <source>it takes at most %1 bytes of UTF-8</source>
        <translation>möglich sind höchstens %1 Byte in UTF-8</translation>
    </message>
    <message>
        <source>%1 is not shown</source>
        <translation>%1 wird nicht gezeigt</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 ist inaktiv</translation>
    </message>
    <message>
        <source>it has %1 (“show %2” lists them all)</source>
        <translation>vorhanden: %1 („show %2“ zeigt alle)</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>vorhanden: %1</translation>
    </message>
    <message>
        <source>several items of %1 carry %2; name one of them by key, text or row: %3</source>
        <translation>mehrere Einträge von %1 tragen %2; nennen Sie einen davon mit key, text oder row: %3</translation>
    </message>
    <message>
        <source>%1 has no item %2</source>
        <translation>%1 hat keinen Eintrag %2</translation>
    </message>
    <message>
        <source>%1 has no item %2, the nearest is %3</source>
        <translation>%1 hat keinen Eintrag %2, am nächsten kommt %3</translation>
    </message>
    <message>
        <source>%1 has a divider there, which cannot be chosen</source>
        <translation>%1 hat dort eine Trennlinie, die nicht gewählt werden kann</translation>
    </message>
    <message>
        <source>%1 opens a submenu with “%2”; choose an item in it</source>
        <translation>%1 öffnet bei „%2“ ein Untermenü; wählen Sie einen Eintrag daraus</translation>
    </message>
    <message>
        <source>%1 offers “%2” only disabled</source>
        <translation>%1 bietet „%2“ nur inaktiv an</translation>
    </message>
    <message>
        <source>%1 does not take “%2”</source>
        <translation>%1 nimmt „%2“ nicht an</translation>
    </message>
    <message>
        <source>write KPDE 102 or @objectName</source>
        <translation>schreiben Sie KPDE 102 oder @objectName</translation>
    </message>
    <message>
        <source>%1 is a %2 and has no items to choose</source>
        <translation>%1 (%2) hat keine Einträge zum Wählen</translation>
    </message>
    <message>
        <source>the items of %1 have no values; name one by text or row</source>
        <translation>die Einträge von %1 haben keine Werte; nennen Sie einen mit text oder row</translation>
    </message>
    <message>
        <source>%1 is a %2 and has no menu</source>
        <translation>%1 (%2) hat kein Menü</translation>
    </message>
    <message>
        <source>its items have none, choose picks them</source>
        <translation>die Einträge haben keinen Befehl, choose wählt sie</translation>
    </message>
    <message>
        <source>%1 has no item with the command %2</source>
        <translation>%1 hat keinen Eintrag mit dem Befehl %2</translation>
    </message>
    <message>
        <source>nothing in the window “%1” takes the command '%2'; “controls” lists the commands of its buttons, and those of menus, which “item” picks</source>
        <translation>nichts im Fenster „%1“ nimmt den Befehl '%2'; „controls“ listet die Befehle der Schaltflächen auf und die der Menüs, die „item“ wählt</translation>
    </message>
    <message>
        <source>nothing in the window “%1” takes the key “%2”</source>
        <translation>nichts im Fenster „%1“ nimmt die Taste „%2“</translation>
    </message>
    <message>
        <source>the focus is on %1</source>
        <translation>der Fokus liegt auf %1</translation>
    </message>
    <message>
        <source>“click” and “type” name their control and need no focus</source>
        <translation>„click“ und „type“ nennen ihr Element und brauchen keinen Fokus</translation>
    </message>
    <message>
        <source>the window is closed before the key “%1”; write it into a line of its own</source>
        <translation>das Fenster ist vor der Taste „%1“ zu; schreiben Sie sie in eine eigene Zeile</translation>
    </message>
    <message>
        <source>“%1” is no key; write Ctrl+P, Return, F6, Alt+1</source>
        <translation>„%1“ ist keine Taste; schreiben Sie Ctrl+P, Return, F6, Alt+1</translation>
    </message>
    <message>
        <source>no file chooser is open</source>
        <translation>es ist keine Dateiauswahl offen</translation>
    </message>
    <message>
        <source>there is no file “%1”</source>
        <translation>es gibt keine Datei „%1“</translation>
    </message>
    <message>
        <source>it cannot be checked</source>
        <translation>lässt sich nicht ankreuzen</translation>
    </message>
    <message>
        <source>it has no %1</source>
        <translation>%1 gibt es hier nicht</translation>
    </message>
    <message>
        <source>%1 has that item: “%2”</source>
        <translation>%1 hat diesen Eintrag: „%2“</translation>
    </message>
    <message>
        <source>“%1” of %2 is not %3</source>
        <translation>„%1“ von %2 ist nicht %3</translation>
    </message>
    <message>
        <source>there is no cell %1 %2; it has %3 rows and %4 columns</source>
        <translation>es gibt keine Zelle %1 %2; es sind %3 Zeilen und %4 Spalten</translation>
    </message>
    <message>
        <source>%1 has buttons 1 to %2, not %3</source>
        <translation>%1 hat die Knöpfe 1 bis %2, nicht %3</translation>
    </message>
    <message>
        <source>%1 offers button %2 only disabled</source>
        <translation>%1 bietet Knopf %2 nur inaktiv an</translation>
    </message>
    <message>
        <source>%1 does not take what was typed</source>
        <translation>%1 nimmt die Eingabe nicht an</translation>
    </message>
    <message>
        <source>it takes numbers from %1 to %2</source>
        <translation>möglich sind Zahlen von %1 bis %2</translation>
    </message>
    <message>
        <source>%1 has tabs 1 to %2, not %3</source>
        <translation>%1 hat die Registerkarten 1 bis %2, nicht %3</translation>
    </message>
    <message>
        <source>%1 offers tab %2 only disabled</source>
        <translation>%1 bietet die Registerkarte %2 nur inaktiv an</translation>
    </message>
</context>
<context>
    <name>Delivery</name>
    <message>
        <source>check that it runs (lpstat -r), or name another one with CUPS_SERVER</source>
        <translation>prüfen Sie, ob er läuft (lpstat -r), oder nennen Sie mit CUPS_SERVER einen anderen</translation>
    </message>
    <message>
        <source>nothing takes connections there</source>
        <translation>dort nimmt niemand Verbindungen an</translation>
    </message>
    <message>
        <source>no print server can be reached at %1: %2</source>
        <translation>unter %1 ist kein Druckserver erreichbar: %2</translation>
    </message>
    <message>
        <source>the print server at %1 did not answer for %2 s</source>
        <translation>der Druckserver %1 hat %2 s lang nicht geantwortet</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>the print server at %1 has no such printer; lpstat -e lists those it has</source>
        <translation>der Druckserver %1 hat keinen solchen Drucker; lpstat -e listet die vorhandenen auf</translation>
    </message>
    <message>
        <source>the print server at %1 does not answer (%2)</source>
        <translation>der Druckserver %1 antwortet nicht (%2)</translation>
    </message>
    <message>
        <source>the print server at %1 asks for a password, which this program cannot give; ask its administrator to let you print</source>
        <translation>der Druckserver %1 verlangt ein Passwort, das dieses Programm nicht angeben kann; bitten Sie seine Verwaltung, Sie drucken zu lassen</translation>
    </message>
    <message>
        <source>the print server at %1 does not let you use this printer; ask its administrator</source>
        <translation>der Druckserver %1 lässt Sie diesen Drucker nicht verwenden; fragen Sie seine Verwaltung</translation>
    </message>
    <message>
        <source>the print server at %1 said no: %2</source>
        <translation>der Druckserver %1 hat abgelehnt: %2</translation>
    </message>
    <message>
        <source>no printer has such a name</source>
        <translation>kein Drucker heißt so</translation>
    </message>
    <message>
        <source>the printer’s PPD does not say that it reads tickets (*KelvoTicket: "1"): a job with a passcode would lie open in the tray; print without it, or have the queue set up with the device’s own PPD</source>
        <translation>die PPD-Datei des Druckers sagt nicht, dass er Tickets liest (*KelvoTicket: "1"): Ein Auftrag mit PIN läge offen im Ausgabefach; drucken Sie ohne PIN oder lassen Sie die Warteschlange mit der PPD-Datei des Geräts einrichten</translation>
    </message>
    <message>
        <source>the printer’s PPD does not say that it reads tickets (*KelvoTicket: "1"): a fax would be printed instead of sent; print without it, or have the queue set up with the device’s own PPD</source>
        <translation>die PPD-Datei des Druckers sagt nicht, dass er Tickets liest (*KelvoTicket: "1"): Ein Fax würde gedruckt statt gesendet; drucken Sie ohne Fax oder lassen Sie die Warteschlange mit der PPD-Datei des Geräts einrichten</translation>
    </message>
    <message>
        <source>document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>there is nothing to print</source>
        <translation>es gibt nichts zu drucken</translation>
    </message>
    <message>
        <source>this is not a folder; name another one</source>
        <translation>das ist kein Ordner; nennen Sie einen anderen</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; make it first, or name another one</source>
        <translation>den Ordner %1 gibt es nicht; legen Sie ihn zuerst an oder nennen Sie einen anderen</translation>
    </message>
    <message>
        <source>the folder cannot be made (%1)</source>
        <translation>der Ordner lässt sich nicht anlegen (%1)</translation>
    </message>
    <message>
        <source>this is not a regular file; move it away</source>
        <translation>das ist keine gewöhnliche Datei; verschieben Sie sie</translation>
    </message>
    <message>
        <source>the file is write-protected; move it away, or name another folder</source>
        <translation>die Datei ist schreibgeschützt; verschieben Sie sie oder nennen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>%1; nothing was printed</source>
        <translation>%1; es wurde nichts gedruckt</translation>
    </message>
    <message>
        <source>the whole document was sent as %1, but the print server at %2 did not answer for %3 s. The job may have been accepted: look with “lpstat -W all -o %4” before you print it again</source>
        <translation>das ganze Dokument wurde als %1 gesendet, aber der Druckserver %2 hat %3 s lang nicht geantwortet. Vielleicht wurde der Auftrag angenommen: Sehen Sie mit „lpstat -W all -o %4“ nach, bevor Sie ihn noch einmal drucken</translation>
    </message>
    <message>
        <source>the job holds a passcode, and the print server at %1 does not offer an encrypted connection (TLS); nothing was sent. Have it switched on, or print without the passcode</source>
        <translation>der Auftrag enthält eine PIN, und der Druckserver %1 bietet keine verschlüsselte Verbindung (TLS) an; es wurde nichts gesendet. Lassen Sie sie einschalten oder drucken Sie ohne PIN</translation>
    </message>
    <message>
        <source>the PPD that the print server at %1 has for it is damaged (%2); have the queue set up again with the device’s PPD</source>
        <translation>die PPD-Datei, die der Druckserver %1 dafür hat, ist beschädigt (%2); lassen Sie die Warteschlange mit der PPD-Datei des Geräts neu einrichten</translation>
    </message>
    <message>
        <source>the whole document was sent as %1, but the print server at %2 broke off before it answered. The job may have been accepted: look with “lpstat -W all -o %3” before you print it again</source>
        <translation>das ganze Dokument wurde als %1 gesendet, aber der Druckserver %2 hat abgebrochen, bevor er geantwortet hat. Vielleicht wurde der Auftrag angenommen: Sehen Sie mit „lpstat -W all -o %3“ nach, bevor Sie ihn noch einmal drucken</translation>
    </message>
    <message>
        <source>%1; the job could not be taken back: cancel it with “cancel %2”</source>
        <translation>%1; der Auftrag konnte nicht zurückgenommen werden: Brechen Sie ihn mit „cancel %2“ ab</translation>
    </message>
    <message>
        <source>blanks, commas, quotes and special characters cannot be sent</source>
        <translation>Leerzeichen, Kommas, Anführungszeichen und Sonderzeichen können nicht gesendet werden</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>the print server drops options of that name</source>
        <translation>der Druckserver verwirft Optionen mit diesem Namen</translation>
    </message>
    <message>
        <source>the print server would make a booklet of its own</source>
        <translation>der Druckserver würde eine eigene Broschüre daraus machen</translation>
    </message>
    <message>
        <source>this setting cannot be sent to a print server: %1; choose another</source>
        <translation>diese Einstellung kann nicht an einen Druckserver gesendet werden: %1; wählen Sie eine andere</translation>
    </message>
    <message>
        <source>the print server at %1 broke off while it sent the PPD; try again</source>
        <translation>der Druckserver %1 hat abgebrochen, während er die PPD-Datei sendete; versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>the print server has no PPD for it: it prints with common settings only</source>
        <translation>der Druckserver hat keine PPD-Datei dafür: Gedruckt wird nur mit allgemeinen Einstellungen</translation>
    </message>
    <message>
        <source>the print server at %1 does not give its PPD: %2</source>
        <translation>der Druckserver %1 gibt die PPD-Datei nicht heraus: %2</translation>
    </message>
    <message>
        <source>its PPD has more than %1 bytes</source>
        <translation>die PPD-Datei hat mehr als %1 Byte</translation>
    </message>
    <message>
        <source>the print server at %1 has an empty PPD for it; have the queue set up again with the device’s PPD</source>
        <translation>die PPD-Datei, die der Druckserver %1 dafür hat, ist leer; lassen Sie die Warteschlange mit der PPD-Datei des Geräts neu einrichten</translation>
    </message>
    <message>
        <source>this is the document itself, which would be lost; name another file</source>
        <translation>dies ist das Dokument selbst, das verloren ginge; nennen Sie eine andere Datei</translation>
    </message>
    <message>
        <source>another file stands there that is no PDF; name another file</source>
        <translation>dort steht eine andere Datei, die kein PDF ist; nennen Sie eine andere Datei</translation>
    </message>
    <message>
        <source>it is too late to cancel this job</source>
        <translation>es ist zu spät, diesen Auftrag abzubrechen</translation>
    </message>
    <message>
        <source>the print server at %1 does not have this job (any more)</source>
        <translation>der Druckserver auf %1 hat diesen Auftrag nicht (mehr)</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>this is not a PPD file; one begins with *PPD-Adobe</source>
        <translation>das ist keine PPD-Datei; eine solche beginnt mit *PPD-Adobe</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>more than %1 options</source>
        <translation>mehr als %1 Optionen</translation>
    </message>
    <message>
        <source>more than %1 groups</source>
        <translation>mehr als %1 Gruppen</translation>
    </message>
    <message>
        <source>more than %1 page sizes</source>
        <translation>mehr als %1 Papierformate</translation>
    </message>
    <message>
        <source>more than %1 constraints</source>
        <translation>mehr als %1 Einschränkungen</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of the option %2; get it again</source>
        <translation>Zeile %1: Die Datei endet mitten in der Option %2; besorgen Sie sie neu</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of the group %2; get it again</source>
        <translation>Zeile %1: Die Datei endet mitten in der Gruppe %2; besorgen Sie sie neu</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of a text in quotes; get it again</source>
        <translation>Zeile %1: Die Datei endet mitten in einem Text in Anführungszeichen; besorgen Sie sie neu</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Byte</translation>
    </message>
    <message>
        <source>compressed; unpack it with gunzip first</source>
        <translation>komprimiert; entpacken Sie sie zuerst mit gunzip</translation>
    </message>
</context>
<context>
    <name>DialogParts</name>
    <message>
        <source>Panels</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>there is no display to show the dialog on; --no-window prints without one</source>
        <translation>es gibt keine Anzeige, auf der der Dialog erscheinen kann; --no-window druckt ohne</translation>
    </message>
    <message>
        <source>no window can be shown with %1; correct that, or print without one: --no-window</source>
        <translation>mit %1 kann kein Fenster gezeigt werden; berichtigen Sie das, oder drucken Sie ohne: --no-window</translation>
    </message>
    <message>
        <source>Qt does not start without a display either (%1); reinstall it</source>
        <translation>Qt startet auch ohne Anzeige nicht (%1); installieren Sie es neu</translation>
    </message>
    <message>
        <source>the display has gone away, and the dialog with it</source>
        <translation>die Anzeige ist nicht mehr da, und der Dialog mit ihr</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>this is a folder; choose a file in it</source>
        <translation>das ist ein Ordner; wählen Sie eine Datei darin</translation>
    </message>
    <message>
        <source>this is no PDF</source>
        <translation>das ist keine PDF-Datei</translation>
    </message>
    <message>
        <source>it could not be turned into a sound PDF</source>
        <translation>daraus ließ sich keine einwandfreie PDF-Datei machen</translation>
    </message>
    <message>
        <source>its pages cannot be laid out like this; choose another paper or scaling</source>
        <translation>seine Seiten lassen sich so nicht anordnen; wählen Sie ein anderes Papier oder eine andere Skalierung</translation>
    </message>
    <message>
        <source>the document has %1 pages, and not all that are asked for</source>
        <translation>das Dokument hat %1 Seiten, und nicht alle gewünschten sind darunter</translation>
    </message>
    <message>
        <source>reading it took longer than %1 seconds; it may be damaged</source>
        <translation>das Lesen hat länger als %1 Sekunden gedauert; vielleicht ist die Datei beschädigt</translation>
    </message>
    <message>
        <source>as PDF it would be larger than %1 MB</source>
        <translation>als PDF wäre es größer als %1 MB</translation>
    </message>
    <message>
        <source>the program that reads it crashed; the file is damaged, or needs more memory than it may have</source>
        <translation>das Programm, das die Datei liest, ist abgestürzt; sie ist beschädigt oder braucht mehr Speicher, als sie haben darf</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1 startet nicht: %2</translation>
    </message>
    <message numerus="yes">
        <source>The drawing shows or uses %n other file(s), which are left out: only what a drawing holds itself is printed. Embed them in it.</source>
        <translation>
            <numerusform>Die Zeichnung zeigt oder verwendet eine andere Datei, die entfällt: Gedruckt wird nur, was eine Zeichnung selbst enthält. Betten Sie diese Datei darin ein.</numerusform>
            <numerusform>Die Zeichnung zeigt oder verwendet %n andere Dateien, die entfallen: Gedruckt wird nur, was eine Zeichnung selbst enthält. Betten Sie sie darin ein.</numerusform>
        </translation>
    </message>
    <message>
        <source>a text of more than %1 MB is not printed</source>
        <translation>ein Text von mehr als %1 MB wird nicht gedruckt</translation>
    </message>
    <message>
        <source>a document of more than %1 MB is not printed</source>
        <translation>ein Dokument von mehr als %1 MB wird nicht gedruckt</translation>
    </message>
    <message>
        <source>a picture of more than %1 MB is not printed</source>
        <translation>ein Bild von mehr als %1 MB wird nicht gedruckt</translation>
    </message>
    <message>
        <source>this is a pipe, and nothing came through it for %1 seconds; start what writes into it, or name a file</source>
        <translation>das ist eine Pipe, und %1 Sekunden lang kam nichts durch sie; starten Sie, was hineinschreibt, oder nennen Sie eine Datei</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>PDF, PostScript, pictures and plain text can be printed</source>
        <translation>gedruckt werden können PDF, PostScript, Bilder und reiner Text</translation>
    </message>
    <message>
        <source>this part that reads documents is not installed beside the program; install kelvo-print anew</source>
        <translation>dieser Teil, der Dokumente liest, ist nicht neben dem Programm installiert; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>the program that reads it gave no answer that makes sense; the file may be damaged</source>
        <translation>das Programm, das die Datei liest, gab keine verständliche Antwort; vielleicht ist die Datei beschädigt</translation>
    </message>
    <message>
        <source>this is not the part that reads documents of kelvo-print %1; install kelvo-print anew</source>
        <translation>das ist nicht der Teil von kelvo-print %1, der Dokumente liest; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>reading it needs more than %1 MB of memory</source>
        <translation>das Lesen braucht mehr als %1 MB Speicher</translation>
    </message>
    <message>
        <source>the program that reads it ended with status %1: %2</source>
        <translation>das Programm, das die Datei liest, endete mit Status %1: %2</translation>
    </message>
    <message>
        <source>this is a ZIP archive or an office document</source>
        <translation>das ist ein ZIP-Archiv oder ein Office-Dokument</translation>
    </message>
    <message>
        <source>this is an office document of an old kind</source>
        <translation>das ist ein Office-Dokument in einem alten Format</translation>
    </message>
    <message>
        <source>this is a gzip-compressed file</source>
        <translation>das ist eine mit gzip komprimierte Datei</translation>
    </message>
    <message>
        <source>this is a program</source>
        <translation>das ist ein Programm</translation>
    </message>
    <message>
        <source>this is ready-made printer data</source>
        <translation>das sind fertige Druckdaten</translation>
    </message>
    <message>
        <source>this is ready-made printer data (PCL)</source>
        <translation>das sind fertige Druckdaten (PCL)</translation>
    </message>
    <message>
        <source>this is a file of a kind that is not known here</source>
        <translation>diese Art von Datei ist hier nicht bekannt</translation>
    </message>
    <message>
        <source>the document holds an older file %1 that could not be taken out; save it as a new PDF without attached files, and print that</source>
        <translation>das Dokument enthält eine ältere Datei %1, die sich nicht herausnehmen ließ; speichern Sie es als neue PDF-Datei ohne angehängte Dateien und drucken Sie diese</translation>
    </message>
    <message>
        <source>the PDF is damaged and cannot be repaired: %1</source>
        <translation>die PDF-Datei ist beschädigt und lässt sich nicht reparieren: %1</translation>
    </message>
    <message>
        <source>the PDF cannot be read: %1</source>
        <translation>die PDF-Datei lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>the author of the document does not allow printing it</source>
        <translation>der Verfasser des Dokuments erlaubt nicht, es zu drucken</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>das Dokument hat keine Seiten</translation>
    </message>
    <message>
        <source>%1 pictures cannot be read here; install the package “qt6-image-formats-plugins”</source>
        <translation>%1-Bilder können hier nicht gelesen werden; installieren Sie das Paket „qt6-image-formats-plugins“</translation>
    </message>
    <message>
        <source>a picture of %1 by %2 pixels is not printed; the limit is %3 million</source>
        <translation>ein Bild von %1 mal %2 Pixeln wird nicht gedruckt; die Grenze liegt bei %3 Millionen</translation>
    </message>
    <message>
        <source>page %1 of the picture cannot be read: %2</source>
        <translation>Seite %1 des Bildes lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>the picture cannot be read: %1</source>
        <translation>das Bild lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>the drawing cannot be read</source>
        <translation>die Zeichnung lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>no font here has the character U+%1 in line %2, which Unicode does not define; install the font that the text was written with, or take the character out</source>
        <translation>keine Schrift hier hat das Zeichen U+%1 in Zeile %2, das in Unicode nicht definiert ist; installieren Sie die Schrift, mit der der Text geschrieben wurde, oder nehmen Sie das Zeichen heraus</translation>
    </message>
    <message>
        <source>no font here has the %1 character “%2” (U+%3) in line %4; install one, for example with the package “%5”</source>
        <comment>%1: Arabic</comment>
        <translation>keine Schrift hier hat das Zeichen „%2“ (U+%3, %1) in Zeile %4; installieren Sie eine, zum Beispiel mit dem Paket „%5“</translation>
    </message>
    <message>
        <source>no font here has the character “%1” (U+%2) in line %3; install one, for example with the package “%4”</source>
        <translation>keine Schrift hier hat das Zeichen „%1“ (U+%2) in Zeile %3; installieren Sie eine, zum Beispiel mit dem Paket „%4“</translation>
    </message>
    <message>
        <source>this begins like a text but holds bytes that no text has</source>
        <translation>das beginnt wie ein Text, enthält aber Bytes, die in keinem Text stehen</translation>
    </message>
    <message>
        <source>a text of more than %1 pages is not printed</source>
        <translation>ein Text von mehr als %1 Seiten wird nicht gedruckt</translation>
    </message>
    <message>
        <source>the folder for temporary files is full (%1); remove what is no longer needed there, or set TMPDIR to a folder on another disk</source>
        <translation>der Ordner für temporäre Dateien ist voll (%1); entfernen Sie dort, was nicht mehr gebraucht wird, oder setzen Sie TMPDIR auf einen Ordner auf einem anderen Datenträger</translation>
    </message>
    <message>
        <source>the folder for temporary files is missing or cannot be written (%1); set TMPDIR to another one</source>
        <translation>der Ordner für temporäre Dateien fehlt oder ist nicht beschreibbar (%1); setzen Sie TMPDIR auf einen anderen</translation>
    </message>
    <message>
        <source>page range “%1”</source>
        <translation>Seitenbereich „%1“</translation>
    </message>
    <message>
        <source>pages are written like this: 1-3, 7, 9-</source>
        <translation>Seiten werden so geschrieben: 1-3, 7, 9-</translation>
    </message>
    <message>
        <source>pages begin at 1</source>
        <translation>Seiten beginnen bei 1</translation>
    </message>
    <message>
        <source>the document has pages 1 to %1</source>
        <translation>das Dokument hat die Seiten 1 bis %1</translation>
    </message>
    <message>
        <source>all ranges together may name %1 pages at most</source>
        <translation>alle Bereiche zusammen dürfen höchstens %1 Seiten nennen</translation>
    </message>
    <message>
        <source>make it smaller, or choose another one</source>
        <translation>verkleinern Sie es oder wählen Sie ein anderes</translation>
    </message>
    <message>
        <source>choose another picture, or repair this one</source>
        <translation>wählen Sie ein anderes Bild oder reparieren Sie dieses</translation>
    </message>
    <message>
        <source>this is a PDF document</source>
        <translation>das ist ein PDF-Dokument</translation>
    </message>
    <message>
        <source>this is a PostScript document</source>
        <translation>das ist ein PostScript-Dokument</translation>
    </message>
    <message>
        <source>this is a WebP picture</source>
        <translation>das ist ein WebP-Bild</translation>
    </message>
    <message>
        <source>this is a text</source>
        <translation>das ist ein Text</translation>
    </message>
    <message>
        <source>this is no file, but a folder or a device</source>
        <translation>das ist keine Datei, sondern ein Ordner oder ein Gerät</translation>
    </message>
    <message>
        <source>a picture of more than %1 MB is not taken</source>
        <translation>ein Bild von mehr als %1 MB wird nicht angenommen</translation>
    </message>
    <message>
        <source>choose a picture in PNG, JPEG, GIF, BMP, TIFF or SVG format</source>
        <translation>wählen Sie ein Bild im Format PNG, JPEG, GIF, BMP, TIFF oder SVG</translation>
    </message>
    <message>
        <source>printing PostScript needs Ghostscript; install the package “ghostscript”</source>
        <translation>PostScript zu drucken erfordert Ghostscript; installieren Sie das Paket „ghostscript“</translation>
    </message>
    <message>
        <source>Ghostscript cannot read the PostScript: %1</source>
        <translation>Ghostscript kann das PostScript nicht lesen: %1</translation>
    </message>
    <message>
        <source>the document is locked with a password</source>
        <translation>das Dokument ist mit einem Passwort gesperrt</translation>
    </message>
    <message>
        <source>the document is locked with another password</source>
        <translation>das Dokument ist mit einem anderen Passwort gesperrt</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>the title asked for, and the file’s name</comment>
        <translation>%1 – %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>what the first document is called</comment>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drawing</name>
    <message>
        <source>this part that draws is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>dieser Teil, der zeichnet, ist nicht bei den Bibliotheken des Programms installiert; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>this part that draws cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>dieser Teil, der zeichnet, lässt sich nicht laden (%1); installieren Sie kelvo-print neu, mit den Paketen, die es braucht</translation>
    </message>
    <message>
        <source>this is not the part that draws of kelvo-print %1; install kelvo-print anew</source>
        <translation>das ist nicht der Teil von kelvo-print %1, der zeichnet; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>a side of %1 points; draw one of more than 0 and at most %2</source>
        <translation>eine Blattseite von %1 Punkt; zeichnen Sie eine von mehr als 0 und höchstens %2</translation>
    </message>
    <message>
        <source>it cannot be shown: what was drawn is no PDF of a page</source>
        <translation>lässt sich nicht zeigen: Was gezeichnet wurde, ist kein PDF einer Seite</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>not a path</source>
        <translation>kein Pfad</translation>
    </message>
    <message>
        <source>the lock file is a symbolic link; remove it</source>
        <translation>die Sperrdatei ist ein symbolischer Link; entfernen Sie ihn</translation>
    </message>
    <message>
        <source>the lock file is not a regular file; remove it</source>
        <translation>die Sperrdatei ist keine gewöhnliche Datei; entfernen Sie sie</translation>
    </message>
    <message>
        <source>another program is writing it; try again</source>
        <translation>ein anderes Programm schreibt sie gerade; versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1: damaged, kept as %2 (%3)</source>
        <translation>%1: beschädigt, als %2 aufbewahrt (%3)</translation>
    </message>
    <message>
        <source>damaged, and too many damaged copies lie beside it; remove them</source>
        <translation>beschädigt, und daneben liegen zu viele beschädigte Kopien; entfernen Sie sie</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>kein Wörterbuch (dict)</translation>
    </message>
    <message>
        <source>make room there, or name another place</source>
        <translation>schaffen Sie dort Platz oder nennen Sie einen anderen Ort</translation>
    </message>
    <message>
        <source>change the rights there, or name a place that you may write to</source>
        <translation>ändern Sie dort die Rechte oder nennen Sie einen Ort, an dem Sie schreiben dürfen</translation>
    </message>
    <message>
        <source>name another place</source>
        <translation>nennen Sie einen anderen Ort</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Byte</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no element of a property list</source>
        <translation>&lt;%1&gt; ist kein Element einer Eigenschaftsliste</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands inside a value</source>
        <translation>&lt;%1&gt; steht in einem Wert</translation>
    </message>
    <message>
        <source>&lt;plist&gt; must be the outermost element</source>
        <translation>&lt;plist&gt; muss das äußerste Element sein</translation>
    </message>
    <message>
        <source>&lt;key&gt; stands where a value is due</source>
        <translation>&lt;key&gt; steht, wo ein Wert erwartet wird</translation>
    </message>
    <message>
        <source>a value stands where &lt;key&gt; is due</source>
        <translation>ein Wert steht, wo &lt;key&gt; erwartet wird</translation>
    </message>
    <message>
        <source>holds more than one value</source>
        <translation>enthält mehr als einen Wert</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>mehr als %1 Werte</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>mehr als %1 Ebenen tief verschachtelt</translation>
    </message>
    <message>
        <source>the key “%1” has no value</source>
        <translation>der Schlüssel „%1“ hat keinen Wert</translation>
    </message>
    <message>
        <source>holds no value</source>
        <translation>enthält keinen Wert</translation>
    </message>
    <message>
        <source>text stands outside a value</source>
        <translation>Text steht außerhalb eines Wertes</translation>
    </message>
    <message>
        <source>“%1” is no signed 64-bit integer</source>
        <translation>„%1“ ist keine ganze Zahl mit Vorzeichen in 64 Bit</translation>
    </message>
    <message>
        <source>“%1” is no finite number</source>
        <translation>„%1“ ist keine endliche Zahl</translation>
    </message>
    <message>
        <source>“%1” is no date of the form 2024-01-31T12:00:00Z</source>
        <translation>„%1“ ist kein Datum der Form 2024-01-31T12:00:00Z</translation>
    </message>
    <message>
        <source>“%1” is no base64</source>
        <translation>„%1“ ist kein Base64</translation>
    </message>
    <message>
        <source>“%1” is no content of &lt;true/&gt; or &lt;false/&gt;</source>
        <translation>„%1“ ist kein Inhalt von &lt;true/&gt; oder &lt;false/&gt;</translation>
    </message>
    <message>
        <source>the key “%1” stands twice</source>
        <translation>der Schlüssel „%1“ steht zweimal da</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>declares an entity</source>
        <translation>vereinbart eine Entität</translation>
    </message>
    <message>
        <source>uses the unknown entity “%1”</source>
        <translation>verwendet die unbekannte Entität „%1“</translation>
    </message>
    <message>
        <source>not XML</source>
        <translation>kein XML</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>a binary property list; only the XML form is read</source>
        <translation>eine binäre Eigenschaftsliste; gelesen wird nur die XML-Form</translation>
    </message>
    <message>
        <source>property list</source>
        <translation>Eigenschaftsliste</translation>
    </message>
    <message>
        <source>the key holds a character that XML cannot hold</source>
        <translation>der Schlüssel enthält ein Zeichen, das in XML nicht vorkommen kann</translation>
    </message>
    <message>
        <source>the string holds a character that XML cannot hold</source>
        <translation>die Zeichenkette enthält ein Zeichen, das in XML nicht vorkommen kann</translation>
    </message>
    <message>
        <source>a date outside the years 1 to 9999</source>
        <translation>ein Datum außerhalb der Jahre 1 bis 9999</translation>
    </message>
    <message>
        <source>a number that is not finite</source>
        <translation>eine Zahl, die nicht endlich ist</translation>
    </message>
    <message>
        <source>an integer beyond signed 64 bits</source>
        <translation>eine ganze Zahl, die nicht in 64 Bit mit Vorzeichen passt</translation>
    </message>
    <message>
        <source>a property list holds no %1</source>
        <translation>in eine Eigenschaftsliste passt kein %1</translation>
    </message>
    <message>
        <source>there is no value</source>
        <translation>es ist kein Wert da</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>not an integer</source>
        <translation>keine ganze Zahl</translation>
    </message>
    <message>
        <source>%1; this program reads version %2</source>
        <translation>%1; dieses Programm liest Version %2</translation>
    </message>
    <message>
        <source>holds an entry without a key</source>
        <translation>enthält einen Eintrag ohne Schlüssel</translation>
    </message>
    <message>
        <source>not a string</source>
        <translation>keine Zeichenkette</translation>
    </message>
    <message>
        <source>not true or false</source>
        <translation>nicht true oder false</translation>
    </message>
    <message>
        <source>not an array</source>
        <translation>keine Liste (array)</translation>
    </message>
    <message>
        <source>holds what is no place of a ticket</source>
        <translation>enthält etwas, das keine Stelle eines Tickets ist</translation>
    </message>
    <message>
        <source>holds no dictionary</source>
        <translation>enthält kein Wörterbuch (dict)</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; make it first, or name another file</source>
        <translation>den Ordner %1 gibt es nicht; legen Sie ihn zuerst an oder nennen Sie eine andere Datei</translation>
    </message>
    <message>
        <source>nothing can be written into the folder %1 (%2)</source>
        <translation>in den Ordner %1 kann nichts geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>this is not a regular file; name another one</source>
        <translation>das ist keine gewöhnliche Datei; nennen Sie eine andere</translation>
    </message>
    <message>
        <source>a file that is not a ticket stands there and is not replaced; move it away or name another file</source>
        <translation>dort steht eine Datei, die kein Ticket ist und nicht ersetzt wird; verschieben Sie sie oder nennen Sie eine andere</translation>
    </message>
    <message>
        <source>there is no preferences folder</source>
        <translation>es gibt keinen Ordner für Einstellungen</translation>
    </message>
    <message>
        <source>there is no folder for it; make ~/.local/share a folder that you can write to</source>
        <translation>dafür gibt es keinen Ordner; machen Sie ~/.local/share zu einem Ordner, in den Sie schreiben können</translation>
    </message>
</context>
<context>
    <name>Font</name>
    <message>
        <source>a font collection</source>
        <translation>eine Schriftensammlung</translation>
    </message>
    <message>
        <source>the file is no font collection</source>
        <translation>die Datei ist keine Schriftensammlung</translation>
    </message>
    <message>
        <source>there is no font number %1 among its %2</source>
        <translation>unter den %2 Schriften gibt es keine mit der Nummer %1</translation>
    </message>
    <message>
        <source>the tables of font number %1 are not in the file</source>
        <translation>die Tabellen der Schrift Nummer %1 sind nicht in der Datei</translation>
    </message>
    <message>
        <source>the tables of font number %1 lie upon one another</source>
        <translation>die Tabellen der Schrift Nummer %1 liegen übereinander</translation>
    </message>
    <message>
        <source>the table post has names for %1 glyphs, but the font has %2</source>
        <translation>die Tabelle post hat Namen für %1 Zeichenbilder, die Schrift aber %2</translation>
    </message>
    <message>
        <source>the table post ends within the numbers of the glyphs’ names</source>
        <translation>die Tabelle post endet mitten in den Nummern der Namen der Zeichenbilder</translation>
    </message>
    <message>
        <source>the table %1 is missing or damaged</source>
        <translation>die Tabelle %1 fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the table head has a wrong magic number</source>
        <translation>die Tabelle head hat eine falsche Kennzahl</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>this font has no TrueType outlines</source>
        <translation>diese Schrift hat keine TrueType-Umrisse</translation>
    </message>
    <message>
        <source>the device prints the watermark in a font of its own</source>
        <translation>das Gerät druckt das Wasserzeichen in einer eigenen Schrift</translation>
    </message>
    <message>
        <source>this font is not installed</source>
        <translation>diese Schrift ist nicht installiert</translation>
    </message>
    <message>
        <source>the watermarks’ file cannot take this font</source>
        <translation>die Datei der Wasserzeichen kann diese Schrift nicht aufnehmen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
    <message>
        <source>The help has no page “%1”.</source>
        <translation>Die Hilfe hat keine Seite „%1“.</translation>
    </message>
    <message>
        <source>This address is outside the help: %1</source>
        <translation>Diese Adresse liegt außerhalb der Hilfe: %1</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The folder with the help pages is missing. Install the software again, or tell your administrator.</source>
        <translation>Der Ordner mit den Hilfeseiten fehlt. Installieren Sie die Software neu oder wenden Sie sich an Ihre Systemverwaltung.</translation>
    </message>
    <message>
        <source>The page “%1” is missing in %2. Install the software again, or tell your administrator.</source>
        <translation>Die Seite „%1“ fehlt in %2. Installieren Sie die Software neu oder wenden Sie sich an Ihre Systemverwaltung.</translation>
    </message>
    <message>
        <source>There is no help for this</source>
        <translation>Hierzu gibt es keine Hilfe</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search in the help</source>
        <translation>In der Hilfe suchen</translation>
    </message>
    <message>
        <source>Pages that were found</source>
        <translation>Gefundene Seiten</translation>
    </message>
    <message>
        <source>No page has all of these words. Type fewer of them, or only how they begin, or look at the contents.</source>
        <translation>Keine Seite enthält alle diese Wörter. Geben Sie weniger davon ein oder nur ihren Anfang, oder sehen Sie im Inhalt nach.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) found</source>
        <translation>
            <numerusform>%n Seite gefunden</numerusform>
            <numerusform>%n Seiten gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>“%1” takes no jobs.</source>
        <translation>„%1“ nimmt keine Aufträge an.</translation>
    </message>
    <message>
        <source>“%1” takes no jobs: %2.</source>
        <translation>„%1“ nimmt keine Aufträge an – %2.</translation>
    </message>
    <message>
        <source>Choose another printer, or wait until it takes jobs again.</source>
        <translation>Wählen Sie einen anderen Drucker oder warten Sie, bis er wieder Aufträge annimmt.</translation>
    </message>
    <message>
        <source>“%1” is stopped.</source>
        <translation>„%1“ ist angehalten.</translation>
    </message>
    <message>
        <source>“%1” is stopped: %2.</source>
        <translation>„%1“ ist angehalten – %2.</translation>
    </message>
    <message>
        <source>A job waits there until the printer is started again.</source>
        <translation>Ein Auftrag wartet dort, bis der Drucker wieder gestartet wird.</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2: what does not fit is cut off.</source>
        <translation>
            <numerusform>Seite %1 ist größer als das Papier, %2: Was nicht darauf passt, wird abgeschnitten.</numerusform>
            <numerusform>Die Seiten %1 sind größer als das Papier, %2: Was nicht darauf passt, wird abgeschnitten.</numerusform>
        </translation>
    </message>
    <message>
        <source>The document is damaged; what could be read of it was put together, and parts may be missing.</source>
        <translation>Das Dokument ist beschädigt; was davon lesbar war, wurde zusammengesetzt, und Teile können fehlen.</translation>
    </message>
    <message>
        <source>Compare the preview with the original, or save the document again from the program that made it.</source>
        <translation>Vergleichen Sie die Vorschau mit dem Original oder speichern Sie das Dokument in dem Programm neu, mit dem es erstellt wurde.</translation>
    </message>
    <message>
        <source>This printer does not have: %1.</source>
        <translation>Dieser Drucker hat nicht: %1.</translation>
    </message>
    <message>
        <source>Not sent, for the print server has no description of this printer: %1.</source>
        <translation>Nicht gesendet, weil der Druckserver keine Beschreibung dieses Druckers hat: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept, to come back with a printer that has them.</source>
        <translation>
            <numerusform>Die Einstellung bleibt erhalten und gilt wieder bei einem Drucker, der sie hat.</numerusform>
            <numerusform>Die Einstellungen bleiben erhalten und gelten wieder bei einem Drucker, der sie hat.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not sent, for this printer reads no job tickets: %1.</source>
        <translation>Nicht gesendet, weil dieser Drucker keine Auftragstickets liest: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept; choose a printer that reads them.</source>
        <translation>
            <numerusform>Die Einstellung bleibt erhalten; wählen Sie einen Drucker, der sie liest.</numerusform>
            <numerusform>Die Einstellungen bleiben erhalten; wählen Sie einen Drucker, der sie liest.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 cannot be used together.</source>
        <translation>%1 lassen sich nicht zusammen verwenden.</translation>
    </message>
    <message>
        <source>%1 cannot be used on this printer (%2).</source>
        <translation>Auf diesem Drucker nicht möglich: %1 (%2).</translation>
    </message>
    <message>
        <source>Set “%1” to “%2”</source>
        <translation>„%1“ auf „%2“ stellen</translation>
    </message>
    <message>
        <source>this printer takes no custom sizes</source>
        <translation>dieser Drucker nimmt keine benutzerdefinierten Formate</translation>
    </message>
    <message>
        <source>a custom size is written Custom.WIDTHxHEIGHT with in, mm, cm or pt behind it; this printer takes widths from %1 to %2 mm and heights from %3 to %4 mm</source>
        <translation>ein benutzerdefiniertes Format wird Custom.BREITExHÖHE geschrieben, mit in, mm, cm oder pt dahinter; dieser Drucker nimmt Breiten von %1 bis %2 mm und Höhen von %3 bis %4 mm</translation>
    </message>
    <message>
        <source>the print server has no description (PPD) of this printer, so that it cannot be asked for this</source>
        <translation>der Druckserver hat keine Beschreibung (PPD) dieses Druckers, deshalb kann das nicht verlangt werden</translation>
    </message>
    <message>
        <source>there is no such value</source>
        <translation>einen solchen Wert gibt es nicht</translation>
    </message>
    <message>
        <source>this is equipment of the printer, which its administrator enters (lpadmin -p PRINTER -o …)</source>
        <translation>das ist eine Ausstattung des Druckers, die seine Verwaltung einträgt (lpadmin -p PRINTER -o …)</translation>
    </message>
    <message>
        <source>this printer has no paper %1</source>
        <translation>dieser Drucker hat kein Papier %1</translation>
    </message>
    <message>
        <source>this printer does not have this option</source>
        <translation>dieser Drucker hat diese Option nicht</translation>
    </message>
    <message>
        <source>3 is portrait, 4 landscape, 5 reverse landscape, 6 reverse portrait</source>
        <translation>3 ist Hochformat, 4 Querformat, 5 umgekehrtes Querformat, 6 umgekehrtes Hochformat</translation>
    </message>
    <message>
        <source>this printer does not print on both sides</source>
        <translation>dieser Drucker druckt nicht beidseitig</translation>
    </message>
    <message>
        <source>copies are a number from 1 to %1</source>
        <translation>die Zahl der Exemplare liegt zwischen 1 und %1</translation>
    </message>
    <message>
        <source>pages are written like 1-3,7,9-</source>
        <translation>Seiten werden wie 1-3,7,9- geschrieben</translation>
    </message>
    <message>
        <source>neither this printer nor kelvo-print has such an option</source>
        <translation>weder dieser Drucker noch kelvo-print hat eine solche Option</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Hochformat, umgekehrt</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Querformat, umgekehrt</translation>
    </message>
    <message>
        <source>%1 – passed on, the printer may not heed it</source>
        <translation>%1 – wird weitergegeben, vielleicht beachtet der Drucker es nicht</translation>
    </message>
    <message>
        <source>Copies: %1</source>
        <translation>Exemplare: %1</translation>
    </message>
    <message>
        <source>Copies: %1, collated</source>
        <translation>Exemplare: %1, sortiert</translation>
    </message>
    <message>
        <source>Copies: %1, not collated</source>
        <translation>Exemplare: %1, nicht sortiert</translation>
    </message>
    <message>
        <source>Pages: All</source>
        <translation>Seiten: alle</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Seiten: %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Ausrichtung: %1</translation>
    </message>
    <message>
        <source>Paper size: %1</source>
        <translation>Papierformat: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 – this printer does not have it</source>
        <translation>%1 – hat dieser Drucker nicht</translation>
    </message>
    <message>
        <source>%1 – the print server has no description of this printer</source>
        <translation>%1 – der Druckserver hat keine Beschreibung dieses Druckers</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) that the device panels add (see Ticket)</source>
        <translation>
            <numerusform>%n Eintrag, den die Geräteeinstellungen hinzufügen (siehe Ticket)</numerusform>
            <numerusform>%n Einträge, die die Geräteeinstellungen hinzufügen (siehe Ticket)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 – this printer reads no tickets</source>
        <translation>%1 – dieser Drucker liest keine Tickets</translation>
    </message>
    <message>
        <source>Cautions:</source>
        <translation>Achtung:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Not sent:</source>
        <translation>Nicht gesendet:</translation>
    </message>
    <message>
        <source>As the printer has it:</source>
        <translation>Wie vom Drucker vorgegeben:</translation>
    </message>
    <message>
        <source>Ticket:</source>
        <translation>Ticket:</translation>
    </message>
    <message numerus="yes">
        <source>%n copy(s)</source>
        <translation>
            <numerusform>%n Exemplar</numerusform>
            <numerusform>%n Exemplare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blätter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 × %2 = %n sheet(s)</source>
        <translation>
            <numerusform>%1 × %2 = %n Blatt</numerusform>
            <numerusform>%1 × %2 = %n Blätter</numerusform>
        </translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>there is no preset of this name, nor any other</source>
        <translation>es gibt keine Voreinstellung dieses Namens und auch sonst keine</translation>
    </message>
    <message>
        <source>there is no preset of this name</source>
        <translation>es gibt keine Voreinstellung dieses Namens</translation>
    </message>
    <message>
        <source>%1: this is not a ticket file</source>
        <translation>%1: das ist keine Ticketdatei</translation>
    </message>
    <message>
        <source>this preset is the administrator’s and cannot be changed here; save one of your own under the same name instead</source>
        <translation>diese Voreinstellung gehört der Systemverwaltung und kann hier nicht geändert werden; speichern Sie stattdessen eine eigene unter demselben Namen</translation>
    </message>
    <message>
        <source>a preset needs a name of one line that is not empty</source>
        <translation>eine Voreinstellung braucht einen Namen aus einer Zeile, die nicht leer ist</translation>
    </message>
    <message>
        <source>there is such a preset already</source>
        <translation>eine solche Voreinstellung gibt es schon</translation>
    </message>
    <message>
        <source>the file that stands there is no preset of this program version; move it away or take another name</source>
        <translation>die Datei, die dort steht, ist keine Voreinstellung dieser Programmversion; verschieben Sie sie oder nehmen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>there is no home folder to keep presets in; set HOME</source>
        <translation>es gibt keinen persönlichen Ordner, um Voreinstellungen aufzubewahren; setzen Sie HOME</translation>
    </message>
    <message>
        <source>%1; the site’s defaults are not used</source>
        <translation>%1; die Voreinstellung für alle wird nicht verwendet</translation>
    </message>
    <message>
        <source>the printer is not reached</source>
        <translation>der Drucker ist nicht erreichbar</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>eine Abdeckung ist offen</translation>
    </message>
    <message>
        <source>the developer is used up</source>
        <translation>der Entwickler ist verbraucht</translation>
    </message>
    <message>
        <source>the developer runs out</source>
        <translation>der Entwickler geht zur Neige</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>eine Klappe ist offen</translation>
    </message>
    <message>
        <source>the fuser is too hot</source>
        <translation>die Fixiereinheit ist zu heiß</translation>
    </message>
    <message>
        <source>the fuser is not hot yet</source>
        <translation>die Fixiereinheit ist noch nicht heiß</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>ein Papierfach fehlt</translation>
    </message>
    <message>
        <source>toner or ink is used up</source>
        <translation>Toner oder Tinte ist verbraucht</translation>
    </message>
    <message>
        <source>toner or ink runs out</source>
        <translation>Toner oder Tinte geht zur Neige</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>der Resttonerbehälter ist fast voll</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>der Resttonerbehälter ist voll</translation>
    </message>
    <message>
        <source>there is no paper</source>
        <translation>es ist kein Papier da</translation>
    </message>
    <message>
        <source>paper is jammed</source>
        <translation>ein Papierstau liegt vor</translation>
    </message>
    <message>
        <source>paper runs out</source>
        <translation>das Papier geht zur Neige</translation>
    </message>
    <message>
        <source>it waits for paper</source>
        <translation>er wartet auf Papier</translation>
    </message>
    <message>
        <source>an output tray is almost full</source>
        <translation>ein Ausgabefach ist fast voll</translation>
    </message>
    <message>
        <source>an output tray is full</source>
        <translation>ein Ausgabefach ist voll</translation>
    </message>
    <message>
        <source>an output tray is missing</source>
        <translation>ein Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>the printer is switched off</source>
        <translation>der Drucker ist ausgeschaltet</translation>
    </message>
    <message>
        <source>its memory is full</source>
        <translation>sein Speicher ist voll</translation>
    </message>
    <message>
        <source>some of its printers are stopped</source>
        <translation>einige seiner Drucker sind angehalten</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>toner is used up</source>
        <translation>der Toner ist verbraucht</translation>
    </message>
    <message>
        <source>toner runs out</source>
        <translation>der Toner geht zur Neige</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>Choose larger paper, or let the pages be made to fit.</source>
        <translation>Wählen Sie größeres Papier, oder lassen Sie die Seiten einpassen.</translation>
    </message>
    <message numerus="yes">
        <source>Covers, inserts, exception pages and booklets count what is printed: the first page there has page(s) %1 of the document.</source>
        <translation>
            <numerusform>Deckblätter, Einlagen, Ausnahmeseiten und Broschüren zählen, was gedruckt wird: Auf der ersten Seite steht Seite %1 des Dokuments.</numerusform>
            <numerusform>Deckblätter, Einlagen, Ausnahmeseiten und Broschüren zählen, was gedruckt wird: Auf der ersten Seite stehen die Seiten %1 des Dokuments.</numerusform>
        </translation>
    </message>
    <message>
        <source>Of these: %1</source>
        <translation>Davon: %1</translation>
    </message>
    <message>
        <source>Order: As in the document</source>
        <translation>Reihenfolge: wie im Dokument</translation>
    </message>
    <message>
        <source>Order: Reversed</source>
        <translation>Reihenfolge: umgekehrt</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2, and made smaller to fit.</source>
        <translation>
            <numerusform>Seite %1 ist größer als das Papier, %2, und wird passend verkleinert.</numerusform>
            <numerusform>Die Seiten %1 sind größer als das Papier, %2, und werden passend verkleinert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages per sheet: %1</source>
        <translation>Seiten pro Blatt: %1</translation>
    </message>
    <message>
        <source>Pages per sheet: %1, %2</source>
        <translation>Seiten pro Blatt: %1, %2</translation>
    </message>
    <message>
        <source>Pages per sheet: %1, %2, with borders</source>
        <translation>Seiten pro Blatt: %1, %2, mit Rahmen</translation>
    </message>
    <message>
        <source>Scaling: %1</source>
        <translation>Skalierung: %1</translation>
    </message>
    <message>
        <source>a side has room for 1, 2, 4, 6, 9 or 16 pages</source>
        <translation>auf einer Blattseite haben 1, 2, 4, 6, 9 oder 16 Seiten Platz</translation>
    </message>
    <message>
        <source>none of these pages has an even number</source>
        <translation>keine dieser Seiten hat eine gerade Nummer</translation>
    </message>
    <message>
        <source>none of these pages has an odd number</source>
        <translation>keine dieser Seiten hat eine ungerade Nummer</translation>
    </message>
    <message>
        <source>pages are scaled by a number from %1 to %2 percent</source>
        <translation>Seiten werden mit einer Zahl von %1 bis %2 Prozent skaliert</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the places on the sheet: what does not fit is cut off.</source>
        <translation>
            <numerusform>Seite %1 ist größer als ihr Platz auf dem Blatt: Was nicht hineinpasst, wird abgeschnitten.</numerusform>
            <numerusform>Die Seiten %1 sind größer als ihre Plätze auf dem Blatt: Was nicht hineinpasst, wird abgeschnitten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose fewer pages per sheet, or let the pages be made to fit.</source>
        <translation>Wählen Sie weniger Seiten pro Blatt, oder lassen Sie die Seiten einpassen.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>On the server: held %1</source>
        <translation>Auf dem Server: angehalten %1</translation>
    </message>
    <message>
        <source>Priority: %1</source>
        <translation>Priorität: %1</translation>
    </message>
    <message>
        <source>a priority is a number from %1 to %2, the higher the sooner</source>
        <translation>eine Priorität ist eine Zahl von %1 bis %2, je höher, desto eher</translation>
    </message>
    <message>
        <source>a time is written HH:MM, in UTC</source>
        <translation>eine Uhrzeit wird HH:MM geschrieben, in UTC</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>vom Druckserver aufgegeben</translation>
    </message>
    <message>
        <source>held</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>held %1</source>
        <translation>angehalten %1</translation>
    </message>
    <message>
        <source>it takes immediate, hold, a time HH:MM in UTC, or a word of job-hold-until: %1</source>
        <translation>erwartet wird immediate, hold, eine Uhrzeit HH:MM in UTC oder ein Wort von job-hold-until: %1</translation>
    </message>
    <message>
        <source>no longer on the print server, which does not keep how jobs ended</source>
        <translation>nicht mehr auf dem Druckserver, der nicht festhält, wie Aufträge geendet haben</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>gedruckt</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>wird gedruckt</translation>
    </message>
    <message>
        <source>that is for a job that is there already; use “lp -i JOB -H %1”</source>
        <translation>das gilt einem Auftrag, den es schon gibt; verwenden Sie „lp -i AUFTRAG -H %1“</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>until daytime (6 to 18 h)</source>
        <translation>bis zum Tag (6 bis 18 Uhr)</translation>
    </message>
    <message>
        <source>until somebody releases it</source>
        <translation>bis ihn jemand freigibt</translation>
    </message>
    <message>
        <source>until the evening (18 to 6 h)</source>
        <translation>bis zum Abend (18 bis 6 Uhr)</translation>
    </message>
    <message>
        <source>until the night (18 to 6 h)</source>
        <translation>bis zur Nacht (18 bis 6 Uhr)</translation>
    </message>
    <message>
        <source>until the second shift (16 to 24 h)</source>
        <translation>bis zur zweiten Schicht (16 bis 24 Uhr)</translation>
    </message>
    <message>
        <source>until the third shift (0 to 8 h)</source>
        <translation>bis zur dritten Schicht (0 bis 8 Uhr)</translation>
    </message>
    <message>
        <source>until the weekend</source>
        <translation>bis zum Wochenende</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>waiting, the printer is stopped</source>
        <translation>wartet, der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>%1 was not cancelled: %2</source>
        <translation>%1 wurde nicht abgebrochen: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) so far</source>
        <translation>
            <numerusform>bisher %n Seite</numerusform>
            <numerusform>bisher %n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no home folder to keep settings in; set HOME</source>
        <translation>es gibt keinen persönlichen Ordner, um Einstellungen aufzubewahren; setzen Sie HOME</translation>
    </message>
</context>
<context>
    <name>JobDetails</name>
    <message>
        <source>Before you print</source>
        <translation>Vor dem Drucken</translation>
    </message>
    <message>
        <source>Set for this job</source>
        <translation>Für diesen Auftrag eingestellt</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>Nicht gesendet</translation>
    </message>
    <message>
        <source>As the device has it</source>
        <translation>Wie vom Gerät vorgegeben</translation>
    </message>
    <message>
        <source>Nothing is set: the device decides everything.</source>
        <translation>Es ist nichts eingestellt: Das Gerät entscheidet alles.</translation>
    </message>
    <message>
        <source>What Will Be Sent</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>In Words</source>
        <translation>In Worten</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>Ticket</translation>
    </message>
    <message>
        <source>Settings in words</source>
        <translation>Einstellungen in Worten</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the text that is shown</source>
        <translation>Kopiert den gezeigten Text</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>JobTiming</name>
    <message>
        <source>&amp;Print:</source>
        <translation>&amp;Drucken:</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>At night (18 to 6 h)</source>
        <translation>In der Nacht (18 bis 6 Uhr)</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>In the daytime (6 to 18 h)</source>
        <translation>Am Tag (6 bis 18 Uhr)</translation>
    </message>
    <message>
        <source>In the evening (18 to 6 h)</source>
        <translation>Am Abend (18 bis 6 Uhr)</translation>
    </message>
    <message>
        <source>In the second shift (16 to 24 h)</source>
        <translation>In der zweiten Schicht (16 bis 24 Uhr)</translation>
    </message>
    <message>
        <source>In the third shift (0 to 8 h)</source>
        <translation>In der dritten Schicht (0 bis 8 Uhr)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Of 1 to 100; the higher, the sooner</source>
        <translation>Von 1 bis 100; je höher, desto eher</translation>
    </message>
    <message>
        <source>P&amp;riority:</source>
        <translation>P&amp;riorität:</translation>
    </message>
    <message>
        <source>The next time that the clock shows this</source>
        <translation>Das nächste Mal, wenn die Uhr dies zeigt</translation>
    </message>
    <message>
        <source>The print server keeps the job until then; it is sent when you press Print.</source>
        <translation>Der Druckserver behält den Auftrag bis dahin; gesendet wird er, wenn Sie auf „Drucken“ klicken.</translation>
    </message>
    <message>
        <source>Time to print at</source>
        <translation>Uhrzeit für den Druck</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>Wenn ihn jemand freigibt</translation>
    </message>
    <message>
        <source>When to Print</source>
        <translation>Wann gedruckt wird</translation>
    </message>
</context>
<context>
    <name>Layout</name>
    <message>
        <source>%1 %</source>
        <comment>a percentage</comment>
        <translation>%1 %</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Shrink larger pages</source>
        <translation>Größere Seiten verkleinern</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>An Papier anpassen</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Papier ausfüllen</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Prozentsatz</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>Rechts, dann abwärts</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>Rechts, dann aufwärts</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>Links, dann abwärts</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>Links, dann aufwärts</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>Abwärts, dann rechts</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>Abwärts, dann links</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>Aufwärts, dann rechts</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>Aufwärts, dann links</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Ungerade und gerade</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Ungerade Seiten</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Gerade Seiten</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>standard output cannot be written; what was done before stays done</source>
        <translation>in die Standardausgabe kann nicht geschrieben werden; was vorher geschah, bleibt geschehen</translation>
    </message>
    <message>
        <source>%1: there is no file %2</source>
        <translation>%1: es gibt keine Datei %2</translation>
    </message>
    <message>
        <source>%1: %2 cannot be read (%3); name a file that you may read</source>
        <translation>%1: %2 lässt sich nicht lesen (%3); nennen Sie eine Datei, die Sie lesen dürfen</translation>
    </message>
    <message>
        <source>check its name, or write one with --ticket-out</source>
        <translation>prüfen Sie den Namen oder schreiben Sie eines mit --ticket-out</translation>
    </message>
    <message>
        <source>--ticket-in: %1 is not a ticket file (%2); name one that --ticket-out or --preset-out wrote</source>
        <translation>--ticket-in: %1 ist keine Ticketdatei (%2); nennen Sie eine, die --ticket-out oder --preset-out geschrieben hat</translation>
    </message>
    <message>
        <source>others may read this secret; set its mode to 0600</source>
        <translation>andere dürfen dieses Geheimnis lesen; setzen Sie die Rechte auf 0600</translation>
    </message>
    <message>
        <source>this is not UTF-8; write the secret as UTF-8 text</source>
        <translation>das ist kein UTF-8; schreiben Sie das Geheimnis als UTF-8-Text</translation>
    </message>
    <message>
        <source>the secret is empty</source>
        <translation>das Geheimnis ist leer</translation>
    </message>
    <message>
        <source>check its name, or write the secret into it</source>
        <translation>prüfen Sie den Namen oder schreiben Sie das Geheimnis hinein</translation>
    </message>
    <message>
        <source>check its name, or give - for standard input</source>
        <translation>prüfen Sie den Namen oder geben Sie - für die Standardeingabe an</translation>
    </message>
    <message>
        <source>--demo: the sample device is not installed</source>
        <translation>--demo: das Beispielgerät ist nicht installiert</translation>
    </message>
    <message>
        <source>check its name, or name a queue with -d</source>
        <translation>prüfen Sie den Namen oder nennen Sie mit -d eine Warteschlange</translation>
    </message>
    <message>
        <source>--demo: the sample document is not installed</source>
        <translation>--demo: das Beispieldokument ist nicht installiert</translation>
    </message>
    <message>
        <source>there is no document: name a file, or pipe one in. `kelvo-print --help` says more.</source>
        <translation>es gibt kein Dokument: Nennen Sie eine Datei oder leiten Sie eine herein. Mehr sagt `kelvo-print --help`.</translation>
    </message>
    <message>
        <source>%1: there is no such document; check its name, or the folder that it is looked for in (%2)</source>
        <translation>%1: ein solches Dokument gibt es nicht; prüfen Sie den Namen oder den Ordner, in dem gesucht wird (%2)</translation>
    </message>
    <message>
        <source>The device panels are missing (%1).</source>
        <translation>Die Geräteeinstellungen fehlen (%1).</translation>
    </message>
    <message>
        <source>the dialog is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>der Dialog ist nicht bei den Bibliotheken des Programms installiert; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>the dialog cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>der Dialog lässt sich nicht laden (%1); installieren Sie kelvo-print neu, mit den Paketen, die es braucht</translation>
    </message>
    <message>
        <source>this is not the dialog of kelvo-print %1; install kelvo-print anew</source>
        <translation>das ist nicht der Dialog von kelvo-print %1; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>Try: kelvo-print --help</source>
        <translation>Versuchen Sie: kelvo-print --help</translation>
    </message>
    <message>
        <source>there are no texts in the language “%1”; name one of these: %2</source>
        <translation>es gibt keine Texte in der Sprache „%1“; nennen Sie eine von diesen: %2</translation>
    </message>
    <message>
        <source>%1 goes on without this program; “cancel %1” takes it back</source>
        <translation>%1 läuft ohne dieses Programm weiter; „cancel %1“ nimmt den Auftrag zurück</translation>
    </message>
    <message>
        <source>%1 was sent, and nobody knows what became of it (%2). It may still be printed: look with “lpstat -W all” before you print it again</source>
        <translation>%1 wurde gesendet, und niemand weiß, was daraus geworden ist (%2). Der Auftrag wird vielleicht noch gedruckt: Sehen Sie mit „lpstat -W all“ nach, bevor Sie ihn noch einmal drucken</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Cancel Job</source>
        <translation>Auftrag abbrechen</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>there is no such bundle</source>
        <translation>ein solches Bündel gibt es nicht</translation>
    </message>
    <message>
        <source>holds no dictionary</source>
        <translation>enthält kein Wörterbuch (dict)</translation>
    </message>
    <message>
        <source>missing or not a string</source>
        <translation>fehlt oder ist keine Zeichenkette</translation>
    </message>
    <message>
        <source>%1 is already the bundle %2</source>
        <translation>%1 ist bereits das Bündel %2</translation>
    </message>
    <message>
        <source>not the name of a file</source>
        <translation>kein Dateiname</translation>
    </message>
    <message>
        <source>the module has no such function</source>
        <translation>das Modul hat keine solche Funktion</translation>
    </message>
    <message>
        <source>it gave no interface (%1)</source>
        <translation>lieferte keine Schnittstelle (%1)</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>fehlgeschlagen (%1)</translation>
    </message>
    <message>
        <source>its interface lacks an operation</source>
        <translation>in der Schnittstelle fehlt eine Operation</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The author of “%1” does not allow printing it without the owner’s password.</source>
        <translation>Der Verfasser von „%1“ erlaubt das Drucken nur mit dem Passwort des Besitzers.</translation>
    </message>
    <message>
        <source>“%1” is locked with a password.</source>
        <translation>„%1“ ist mit einem Passwort gesperrt.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>Password of the document</source>
        <translation>Passwort des Dokuments</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>Das ist nicht das Passwort.</translation>
    </message>
    <message>
        <source>This is not the owner’s password.</source>
        <translation>Das ist nicht das Passwort des Besitzers.</translation>
    </message>
</context>
<context>
    <name>People</name>
    <message>
        <source>address book</source>
        <translation>Adressbuch</translation>
    </message>
    <message>
        <source>none is set up; make one in the desktop’s contacts</source>
        <translation>es ist keines eingerichtet; legen Sie in den Kontakten der Arbeitsumgebung eines an</translation>
    </message>
    <message>
        <source>this address book cannot be changed; make another one the default in the desktop’s contacts</source>
        <translation>dieses Adressbuch lässt sich nicht ändern; machen Sie in den Kontakten der Arbeitsumgebung ein anderes zum Standard</translation>
    </message>
    <message>
        <source>nobody of that entry is there any more; choose somebody else</source>
        <translation>von diesem Eintrag ist niemand mehr da; wählen Sie jemand anderen</translation>
    </message>
    <message>
        <source>the desktop does not answer; log in anew</source>
        <translation>die Arbeitsumgebung antwortet nicht; melden Sie sich neu an</translation>
    </message>
    <message>
        <source>the system has no thread to give; end other programs and try again</source>
        <translation>das System kann keine weitere Aufgabe starten; beenden Sie andere Programme und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>stopped before it had answered</source>
        <translation>beendet, bevor eine Antwort kam</translation>
    </message>
    <message>
        <source>it does not answer (%1); try again</source>
        <translation>keine Antwort (%1); versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>there is no desktop session with an address book; log in to a desktop</source>
        <translation>es gibt keine Sitzung mit einem Adressbuch; melden Sie sich an einer Arbeitsumgebung an</translation>
    </message>
    <message>
        <source>this desktop has no address book; install the package evolution-data-server</source>
        <translation>diese Arbeitsumgebung hat kein Adressbuch; installieren Sie das Paket evolution-data-server</translation>
    </message>
    <message>
        <source>the part of kelvo-print that asks the address book is not installed; install the package kelvo-print-address-book</source>
        <translation>der Teil von kelvo-print, der das Adressbuch fragt, ist nicht installiert; installieren Sie das Paket kelvo-print-address-book</translation>
    </message>
    <message>
        <source>the part of kelvo-print that asks the address book cannot be loaded (%1); install the package kelvo-print-address-book anew, with what it needs</source>
        <translation>der Teil von kelvo-print, der das Adressbuch fragt, lässt sich nicht laden (%1); installieren Sie das Paket kelvo-print-address-book neu, mit dem, was es braucht</translation>
    </message>
    <message>
        <source>this part that asks the address book is not that of kelvo-print %1; install the package kelvo-print-address-book anew</source>
        <translation>dieser Teil, der das Adressbuch fragt, gehört nicht zu kelvo-print %1; installieren Sie das Paket kelvo-print-address-book neu</translation>
    </message>
    <message>
        <source>vCards</source>
        <translation>vCards</translation>
    </message>
    <message>
        <source>more than %1 MiB; divide the file</source>
        <translation>mehr als %1 MiB; teilen Sie die Datei</translation>
    </message>
    <message>
        <source>more than %1 cards; divide the file</source>
        <translation>mehr als %1 Visitenkarten; teilen Sie die Datei</translation>
    </message>
    <message>
        <source>there is no card in it; choose a vCard file (.vcf)</source>
        <translation>es ist keine Visitenkarte darin; wählen Sie eine vCard-Datei (.vcf)</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Sheet %1, back · blank</source>
        <translation>Blatt %1, hinten · leer</translation>
    </message>
    <message>
        <source>Sheet %1 · %2</source>
        <translation>Blatt %1 · %2</translation>
    </message>
    <message>
        <source>Sheets %1–%2 · %3</source>
        <translation>Blätter %1–%2 · %3</translation>
    </message>
    <message>
        <source>the printer decides where it goes</source>
        <translation>der Drucker entscheidet, wohin es kommt</translation>
    </message>
    <message>
        <source>larger than the paper</source>
        <translation>größer als das Papier</translation>
    </message>
    <message>
        <source>shown top to bottom; the printer decides</source>
        <translation>gezeigt von oben nach unten; der Drucker entscheidet</translation>
    </message>
    <message>
        <source>shown left to right; the printer decides</source>
        <translation>gezeigt von links nach rechts; der Drucker entscheidet</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>„%1“ lässt sich nicht zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n sheet(s)</source>
        <translation>
            <numerusform>%1, %n Blatt</numerusform>
            <numerusform>%1, %n Blätter</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Leer</translation>
    </message>
    <message numerus="yes">
        <source>%1 · page(s) %2 of %3</source>
        <translation>
            <numerusform>%1 · Seite %2 von %3</numerusform>
            <numerusform>%1 · Seiten %2 von %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, one blank</source>
        <translation>%1, eine leer</translation>
    </message>
    <message>
        <source>Sheet %1</source>
        <translation>Blatt %1</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>Blatt %1, hinten</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>Blatt %1, vorn</translation>
    </message>
    <message>
        <source>larger than the places on the sheet</source>
        <translation>größer als die Plätze auf dem Blatt</translation>
    </message>
    <message>
        <source>at %1</source>
        <comment>a percentage of its size</comment>
        <translation>auf %1</translation>
    </message>
</context>
<context>
    <name>Script</name>
    <message>
        <source>shows a panel of the window, or a tab of the device, by name; a name that there is not lists them</source>
        <translation>zeigt einen Bereich des Fensters oder eine Registerkarte des Geräts, nach Namen; ein Name, den es nicht gibt, listet sie auf</translation>
    </message>
    <message>
        <source>shows the device’s tab N, from 1</source>
        <translation>zeigt die Registerkarte N des Geräts, ab 1</translation>
    </message>
    <message>
        <source>picks an item of a pop-up; WHAT: 12, 'code', unset, key NAME, text "…", row 3</source>
        <translation>wählt einen Eintrag einer Auswahlliste; WHAT: 12, 'code', unset, key NAME, text "…", row 3</translation>
    </message>
    <message>
        <source>picks the menu item with that command, submenus included</source>
        <translation>wählt den Menüeintrag mit diesem Befehl, auch in Untermenüs</translation>
    </message>
    <message>
        <source>presses a button or a radio button</source>
        <translation>drückt eine Schaltfläche oder ein Optionsfeld</translation>
    </message>
    <message>
        <source>sets a check box</source>
        <translation>setzt ein Kontrollkästchen</translation>
    </message>
    <message>
        <source>replaces the text as a user types it; `secret NAME` types a secret from --secret</source>
        <translation>ersetzt den Text, wie jemand ihn tippt; `secret NAME` tippt ein Geheimnis aus --secret</translation>
    </message>
    <message>
        <source>sets a spin field, slider, radio group or tab control</source>
        <translation>stellt ein Zahlenfeld, einen Schieberegler, eine Optionsgruppe oder Registerkarten</translation>
    </message>
    <message>
        <source>sets a time field</source>
        <translation>stellt ein Zeitfeld</translation>
    </message>
    <message>
        <source>selects rows of a list, from 1; 0 is the empty area</source>
        <translation>markiert Zeilen einer Liste, ab 1; 0 ist der leere Bereich</translation>
    </message>
    <message>
        <source>double-clicks a row of a list; 0 is the empty area</source>
        <translation>doppelklickt auf eine Zeile einer Liste; 0 ist der leere Bereich</translation>
    </message>
    <message>
        <source>presses keys in the front window, or in the menu, list or help that is open there</source>
        <translation>drückt Tasten im vorderen Fenster oder im Menü, in der Liste oder in der Hilfe, die dort offen ist</translation>
    </message>
    <message>
        <source>drags from the control’s middle, in points; of a page, in points of the paper</source>
        <translation>zieht von der Mitte des Bedienelements aus, in Punkt; auf einer Seite in Punkt des Papiers</translation>
    </message>
    <message>
        <source>answers a file chooser</source>
        <translation>beantwortet eine Dateiauswahl</translation>
    </message>
    <message>
        <source>sends a command to the front window</source>
        <translation>sendet einen Befehl an das vordere Fenster</translation>
    </message>
    <message>
        <source>presses button N of the notice in front; 1 is its default</source>
        <translation>drückt Knopf N des vorderen Hinweises; 1 ist der Standard</translation>
    </message>
    <message>
        <source>presses Print</source>
        <translation>drückt „Drucken“</translation>
    </message>
    <message>
        <source>cancels the front dialog</source>
        <translation>bricht den vorderen Dialog ab</translation>
    </message>
    <message>
        <source>all panels read the ticket or write it</source>
        <translation>alle Bereiche lesen das Ticket oder schreiben es</translation>
    </message>
    <message>
        <source>value, index, text, enabled, visible, checked, focus, items, maximum, selection, cell ROW COLUMN</source>
        <translation>value, index, text, enabled, visible, checked, focus, items, maximum, selection, cell ROW COLUMN</translation>
    </message>
    <message>
        <source>present, absent, enabled, disabled, checked, unchecked</source>
        <translation>present, absent, enabled, disabled, checked, unchecked</translation>
    </message>
    <message>
        <source>the ticket as it stands; PATH steps into it with /</source>
        <translation>das Ticket, wie es ist; PATH führt mit / hinein</translation>
    </message>
    <message>
        <source>a PPD choice in the ticket</source>
        <translation>eine PPD-Wahl im Ticket</translation>
    </message>
    <message>
        <source>the front notice contains the text</source>
        <translation>der vordere Hinweis enthält den Text</translation>
    </message>
    <message>
        <source>the front window is that one</source>
        <translation>das vordere Fenster ist dieses</translation>
    </message>
    <message>
        <source>prints one control as JSON</source>
        <translation>gibt ein Bedienelement als JSON aus</translation>
    </message>
    <message>
        <source>prints the front window’s controls as JSON</source>
        <translation>gibt die Bedienelemente des vorderen Fensters als JSON aus</translation>
    </message>
    <message>
        <source>prints what will be sent, in words</source>
        <translation>gibt in Worten aus, was gesendet wird</translation>
    </message>
    <message>
        <source>writes the front window as PNG, for its owner alone</source>
        <translation>schreibt das vordere Fenster als PNG, nur für den Besitzer lesbar</translation>
    </message>
    <message>
        <source>\%1 is no escape; there are \" \\ and \n</source>
        <translation>\%1 ist keine Umschreibung; es gibt \" \\ und \n</translation>
    </message>
    <message>
        <source>the text is not closed with a double quote</source>
        <translation>der Text ist nicht mit einem doppelten Anführungszeichen geschlossen</translation>
    </message>
    <message>
        <source>after a closing quote comes a blank</source>
        <translation>nach einem schließenden Anführungszeichen folgt ein Leerzeichen</translation>
    </message>
    <message>
        <source>a code is four characters in single quotes, like 'KFup'</source>
        <translation>ein Code besteht aus vier Zeichen in einfachen Anführungszeichen, wie 'KFup'</translation>
    </message>
    <message>
        <source>what follows type is no control; write KPDE 102 or @objectName</source>
        <translation>was auf type folgt, ist kein Bedienelement; schreiben Sie KPDE 102 oder @objectName</translation>
    </message>
    <message>
        <source>“%1” is no control; write KPDE 102 or @objectName</source>
        <translation>„%1“ ist kein Bedienelement; schreiben Sie KPDE 102 oder @objectName</translation>
    </message>
    <message>
        <source>“%1” is no code; write four characters in single quotes</source>
        <translation>„%1“ ist kein Code; schreiben Sie vier Zeichen in einfachen Anführungszeichen</translation>
    </message>
    <message>
        <source>after %1 comes what it is</source>
        <translation>nach %1 folgt, was es ist</translation>
    </message>
    <message>
        <source>“%1” is no row; rows count from 1</source>
        <translation>„%1“ ist keine Zeile; Zeilen zählen ab 1</translation>
    </message>
    <message>
        <source>“%1” names no item; write a number, 'code', unset, key NAME, text "…" or row N</source>
        <translation>„%1“ nennt keinen Eintrag; schreiben Sie eine Zahl, 'code', unset, key NAME, text "…" oder row N</translation>
    </message>
    <message>
        <source>“%1” is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>“%1” is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>“%1” is none of %2</source>
        <translation>„%1“ ist nichts von %2</translation>
    </message>
    <message>
        <source>put a text with blanks into double quotes</source>
        <translation>setzen Sie einen Text mit Leerzeichen in doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>after secret comes its name</source>
        <translation>nach secret folgt sein Name</translation>
    </message>
    <message>
        <source>“%1” is no time; write HH:MM or HH:MM:SS</source>
        <translation>„%1“ ist keine Uhrzeit; schreiben Sie HH:MM oder HH:MM:SS</translation>
    </message>
    <message>
        <source>“%1” is no list of rows; write 1,2,5</source>
        <translation>„%1“ ist keine Liste von Zeilen; schreiben Sie 1,2,5</translation>
    </message>
    <message>
        <source>%1; there are %2</source>
        <translation>%1; es gibt %2</translation>
    </message>
    <message>
        <source>“%1” is no property</source>
        <translation>„%1“ ist keine Eigenschaft</translation>
    </message>
    <message>
        <source>cell takes a row, a column and the text</source>
        <translation>auf cell folgen Zeile, Spalte und Text</translation>
    </message>
    <message>
        <source>put a value with blanks into double quotes</source>
        <translation>setzen Sie einen Wert mit Leerzeichen in doppelte Anführungszeichen</translation>
    </message>
    <message>
        <source>%1 (kelvo-print --help-scripts lists them)</source>
        <translation>%1 (kelvo-print --help-scripts listet sie auf)</translation>
    </message>
    <message>
        <source>there is no command “%1”</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>something is missing: %1</source>
        <translation>es fehlt etwas: %1</translation>
    </message>
    <message>
        <source>there is too much: %1</source>
        <translation>es ist zu viel: %1</translation>
    </message>
    <message>
        <source>this is not UTF-8 text; a script is a text file</source>
        <translation>das ist kein UTF-8-Text; ein Skript ist eine Textdatei</translation>
    </message>
    <message>
        <source>the script is empty; write a command a line (kelvo-print --help-scripts lists them)</source>
        <translation>das Skript ist leer; schreiben Sie je Zeile einen Befehl (kelvo-print --help-scripts listet sie auf)</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
    <message>
        <source>a script has at most 16 MiB</source>
        <translation>ein Skript hat höchstens 16 MiB</translation>
    </message>
    <message>
        <source>A script has one command a line; # begins a comment. CONTROL is KPDE 614 or
@bannerSheet: kelvo-print --list-controls lists them.

</source>
        <translation>Ein Skript hat einen Befehl je Zeile; # beginnt einen Kommentar. CONTROL ist KPDE 614
oder @bannerSheet: kelvo-print --list-controls listet sie auf.

</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a notice's header and message</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the dialog is closed; nothing can be done after that</source>
        <translation>der Dialog ist geschlossen; danach kann nichts mehr getan werden</translation>
    </message>
    <message>
        <source>a menu or list is open; only “key” lines pick from it or close it, “item” and “choose” pick while it is closed</source>
        <translation>ein Menü oder eine Liste ist offen; nur „key“-Zeilen wählen daraus oder schließen sie, „item“ und „choose“ wählen, solange sie zu ist</translation>
    </message>
    <message>
        <source>a notice came up: %1 (answers: %2); expect or answer it in the next line</source>
        <translation>ein Hinweis erschien: %1 (Antworten: %2); erwarten oder beantworten Sie ihn in der nächsten Zeile</translation>
    </message>
    <message>
        <source>nothing was sent. %1 Set it in the window (leave out --no-window), or with --script FILE, which takes what is secret from --secret NAME=FILE.</source>
        <translation>es wurde nichts gesendet. %1 Stellen Sie es im Fenster ein (lassen Sie --no-window weg) oder mit --script FILE; was geheim ist, kommt dabei aus --secret NAME=FILE.</translation>
    </message>
    <message>
        <source>the script ends while the dialog “%1” is open</source>
        <translation>das Skript endet, während der Dialog „%1“ offen ist</translation>
    </message>
    <message>
        <source>The dialog “%1” asks for more.</source>
        <translation>Der Dialog „%1“ fragt nach mehr.</translation>
    </message>
    <message>
        <source>%1: the script has ended without printing; nothing was sent. Add `print`, or --print to the command line, to print.</source>
        <translation>%1: das Skript ist zu Ende, ohne zu drucken; es wurde nichts gesendet. Fügen Sie `print` hinzu oder --print auf der Befehlszeile, um zu drucken.</translation>
    </message>
    <message>
        <source>the dialog “%1” is open and must be closed first</source>
        <translation>der Dialog „%1“ ist offen und muss zuerst geschlossen werden</translation>
    </message>
    <message>
        <source>no notice is shown</source>
        <translation>es wird kein Hinweis gezeigt</translation>
    </message>
    <message>
        <source>the notice has no button %1; it has %2</source>
        <translation>der Hinweis hat keinen Knopf %1; er hat %2</translation>
    </message>
    <message>
        <source>the notice says: %1</source>
        <translation>der Hinweis lautet: %1</translation>
    </message>
    <message>
        <source>the front window is “%1” (@%2)</source>
        <translation>das vordere Fenster ist „%1“ (@%2)</translation>
    </message>
    <message>
        <source>%1 is not in the window</source>
        <translation>%1 ist nicht im Fenster</translation>
    </message>
    <message>
        <source>%1 is not in the dialog “%2”</source>
        <translation>%1 ist nicht im Dialog „%2“</translation>
    </message>
    <message>
        <source>%1; “controls” lists what is</source>
        <translation>%1; „controls“ listet auf, was da ist</translation>
    </message>
    <message>
        <source>%1 is not shown</source>
        <translation>%1 wird nicht gezeigt</translation>
    </message>
    <message>
        <source>there is no secret “%1”; give --secret %1=FILE</source>
        <translation>es gibt kein Geheimnis „%1“; geben Sie --secret %1=FILE an</translation>
    </message>
    <message>
        <source>this command takes no control</source>
        <translation>dieser Befehl nimmt kein Bedienelement</translation>
    </message>
    <message>
        <source>%1 has %2 items, not %3</source>
        <translation>%1 hat %2 Einträge, nicht %3</translation>
    </message>
    <message>
        <source>%1 of %2 is “%3”; of a secret only “%4” or “” is told</source>
        <translation>%1 von %2 ist „%3“; von einem Geheimnis wird nur „%4“ oder „“ verraten</translation>
    </message>
    <message>
        <source>%1 of %2 is “%3”, not “%4”</source>
        <translation>%1 von %2 ist „%3“, nicht „%4“</translation>
    </message>
    <message>
        <source>the ticket has no %1</source>
        <translation>das Ticket hat kein %1</translation>
    </message>
    <message>
        <source>%1… (cut)</source>
        <translation>%1… (gekürzt)</translation>
    </message>
    <message>
        <source>%1 is there: “%2”</source>
        <translation>%1 ist da: „%2“</translation>
    </message>
    <message>
        <source>%1 is “%2”, not what this line says; a secret is not told</source>
        <translation>%1 ist „%2“, nicht das, was diese Zeile sagt; ein Geheimnis wird nicht verraten</translation>
    </message>
    <message>
        <source>%1 is “%2”, not “%3”</source>
        <translation>%1 ist „%2“, nicht „%3“</translation>
    </message>
    <message>
        <source>the picture “%1” cannot be written (%2)</source>
        <translation>das Bild „%1“ kann nicht geschrieben werden (%2)</translation>
    </message>
</context>
<context>
    <name>Scripts</name>
    <message>
        <source>Chinese or Japanese</source>
        <translation>Chinesisch oder Japanisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armenisch</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Devanagari</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>Äthiopisch</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgisch</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>Gujarati</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>Gurmukhi</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>Kannada</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>Khmer</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>Laotisch</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>Malayalam</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation>Birmanisch</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>Singhalesisch</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>Tamil</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation>Telugu</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>Tibetisch</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>caution: %1</source>
        <translation>Achtung: %1</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a clause that stands alone</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Only the printer adds this: %1.</source>
        <translation>Nur der Drucker fügt dies hinzu: %1.</translation>
    </message>
    <message>
        <source>the booklet</source>
        <translation>die Broschüre</translation>
    </message>
    <message>
        <source>the watermark</source>
        <translation>das Wasserzeichen</translation>
    </message>
    <message>
        <source>covers and inserts</source>
        <translation>Deckblätter und Einlagen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a document, and what is to be said of it</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StandardWords</name>
    <message>
        <source>Two-sided printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Output destination</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>Optimieren für</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Trimming</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Binden</translation>
    </message>
    <message>
        <source>Other finishing</source>
        <translation>Weitere Endverarbeitung</translation>
    </message>
    <message>
        <source>Finishing preset</source>
        <translation>Vorlage für die Endverarbeitung</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Endverarbeitung</translation>
    </message>
    <message>
        <source>1-sided print</source>
        <translation>Einseitig</translation>
    </message>
    <message>
        <source>2-sided print</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>2-sided print, flip on short edge</source>
        <translation>Beidseitig, kurze Kante</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>Automatisch, Schwarzweiß</translation>
    </message>
    <message>
        <source>Black only, no shades</source>
        <translation>Nur Schwarz, ohne Graustufen</translation>
    </message>
    <message>
        <source>Black and one color</source>
        <translation>Schwarz und eine Farbe</translation>
    </message>
    <message>
        <source>Black only, mixed from colors</source>
        <translation>Nur Schwarz, aus Farben gemischt</translation>
    </message>
    <message>
        <source>Black and white, mixed from colors</source>
        <translation>Schwarzweiß, aus Farben gemischt</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>Farbe (CMYK)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Hauptfach</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Alternatives Fach</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>Alternative Rolle</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Einzelblattzufuhr</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Manuelle Zufuhr</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>Oberes Fach</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Mittleres Fach</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>Unteres Fach</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Linkes Fach</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Rechtes Fach</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Zentrales Fach</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Hinteres Fach</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Seitliches Fach</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Disc-Fach</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>Umschlagzufuhr</translation>
    </message>
    <message>
        <source>High-capacity tray</source>
        <translation>Großraumfach</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>Hauptrolle</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotofach</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Fach %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolle %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>Dünnes Papier</translation>
    </message>
    <message>
        <source>Thick paper</source>
        <translation>Dickes Papier</translation>
    </message>
    <message>
        <source>Thick coated paper</source>
        <translation>Dickes gestrichenes Papier</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Gestrichenes Papier</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Tintenstrahlpapier</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Feinpapier</translation>
    </message>
    <message>
        <source>Bond paper</source>
        <translation>Bankpostpapier</translation>
    </message>
    <message>
        <source>Recycled paper</source>
        <translation>Recyclingpapier</translation>
    </message>
    <message>
        <source>Colored paper</source>
        <translation>Farbiges Papier</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Briefbogen</translation>
    </message>
    <message>
        <source>Preprinted paper</source>
        <translation>Vorgedrucktes Papier</translation>
    </message>
    <message>
        <source>Prepunched paper</source>
        <translation>Vorgelochtes Papier</translation>
    </message>
    <message>
        <source>Cotton paper</source>
        <translation>Baumwollpapier</translation>
    </message>
    <message>
        <source>Archival paper</source>
        <translation>Archivpapier</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Cardboard</source>
        <translation>Pappe</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Endlospapier</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disc</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Plain envelope</source>
        <translation>Umschlag ohne Fenster</translation>
    </message>
    <message>
        <source>Window envelope</source>
        <translation>Fensterumschlag</translation>
    </message>
    <message>
        <source>Fabric</source>
        <translation>Stoff</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Kunststofffolie</translation>
    </message>
    <message>
        <source>Back-print film</source>
        <translation>Rückseitenfolie</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Folie</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Continuous labels</source>
        <translation>Endlosetiketten</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Photo paper, glossy</source>
        <translation>Fotopapier, glänzend</translation>
    </message>
    <message>
        <source>Photo paper, high gloss</source>
        <translation>Fotopapier, hochglänzend</translation>
    </message>
    <message>
        <source>Photo paper, matte</source>
        <translation>Fotopapier, matt</translation>
    </message>
    <message>
        <source>Photo paper, satin</source>
        <translation>Fotopapier, seidenmatt</translation>
    </message>
    <message>
        <source>Photo paper, semi-gloss</source>
        <translation>Fotopapier, halbglänzend</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Fotofilm</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Registerblätter</translation>
    </message>
    <message>
        <source>Precut tabs</source>
        <translation>Vorgeschnittene Register</translation>
    </message>
    <message>
        <source>Fanfold paper</source>
        <translation>Leporellopapier</translation>
    </message>
    <message>
        <source>Multi-part form</source>
        <translation>Mehrlagiges Formular</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Druckseite oben</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Druckseite unten</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Mein Postfach</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Postfach %1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Stapelablage %1</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafiken</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Text und Grafiken</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 Heftklammer</translation>
    </message>
    <message>
        <source>1 staple, top left</source>
        <translation>1 Heftklammer, oben links</translation>
    </message>
    <message>
        <source>1 staple, bottom left</source>
        <translation>1 Heftklammer, unten links</translation>
    </message>
    <message>
        <source>1 staple, top right</source>
        <translation>1 Heftklammer, oben rechts</translation>
    </message>
    <message>
        <source>1 staple, bottom right</source>
        <translation>1 Heftklammer, unten rechts</translation>
    </message>
    <message>
        <source>Along an edge</source>
        <translation>An einer Kante</translation>
    </message>
    <message>
        <source>Along the left edge</source>
        <translation>An der linken Kante</translation>
    </message>
    <message>
        <source>Along the top edge</source>
        <translation>An der oberen Kante</translation>
    </message>
    <message>
        <source>Along the right edge</source>
        <translation>An der rechten Kante</translation>
    </message>
    <message>
        <source>Along the bottom edge</source>
        <translation>An der unteren Kante</translation>
    </message>
    <message>
        <source>Through the fold</source>
        <translation>Durch den Rücken</translation>
    </message>
    <message>
        <source>2 staples, left</source>
        <translation>2 Heftklammern, links</translation>
    </message>
    <message>
        <source>2 staples, top</source>
        <translation>2 Heftklammern, oben</translation>
    </message>
    <message>
        <source>2 staples, right</source>
        <translation>2 Heftklammern, rechts</translation>
    </message>
    <message>
        <source>2 staples, bottom</source>
        <translation>2 Heftklammern, unten</translation>
    </message>
    <message>
        <source>3 staples, left</source>
        <translation>3 Heftklammern, links</translation>
    </message>
    <message>
        <source>3 staples, top</source>
        <translation>3 Heftklammern, oben</translation>
    </message>
    <message>
        <source>3 staples, right</source>
        <translation>3 Heftklammern, rechts</translation>
    </message>
    <message>
        <source>3 staples, bottom</source>
        <translation>3 Heftklammern, unten</translation>
    </message>
    <message>
        <source>Holes</source>
        <translation>Löcher</translation>
    </message>
    <message>
        <source>2 holes, left</source>
        <translation>2 Löcher, links</translation>
    </message>
    <message>
        <source>2 holes, top</source>
        <translation>2 Löcher, oben</translation>
    </message>
    <message>
        <source>2 holes, right</source>
        <translation>2 Löcher, rechts</translation>
    </message>
    <message>
        <source>2 holes, bottom</source>
        <translation>2 Löcher, unten</translation>
    </message>
    <message>
        <source>3 holes, left</source>
        <translation>3 Löcher, links</translation>
    </message>
    <message>
        <source>3 holes, top</source>
        <translation>3 Löcher, oben</translation>
    </message>
    <message>
        <source>3 holes, right</source>
        <translation>3 Löcher, rechts</translation>
    </message>
    <message>
        <source>3 holes, bottom</source>
        <translation>3 Löcher, unten</translation>
    </message>
    <message>
        <source>4 holes, left</source>
        <translation>4 Löcher, links</translation>
    </message>
    <message>
        <source>4 holes, top</source>
        <translation>4 Löcher, oben</translation>
    </message>
    <message>
        <source>4 holes, right</source>
        <translation>4 Löcher, rechts</translation>
    </message>
    <message>
        <source>4 holes, bottom</source>
        <translation>4 Löcher, unten</translation>
    </message>
    <message>
        <source>Many holes, left</source>
        <translation>Viele Löcher, links</translation>
    </message>
    <message>
        <source>Many holes, top</source>
        <translation>Viele Löcher, oben</translation>
    </message>
    <message>
        <source>Many holes, right</source>
        <translation>Viele Löcher, rechts</translation>
    </message>
    <message>
        <source>Many holes, bottom</source>
        <translation>Viele Löcher, unten</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falz</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Leporellofalz</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Doppelter Fensterfalz</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>Zeichnungs-Z-Falz</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Fensterfalz</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>Einbruchfalz</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Halber Z-Falz</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>Linker Fensterfalz</translation>
    </message>
    <message>
        <source>C fold</source>
        <translation>Wickelfalz</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Parallelfalz</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>Plakatfalz</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>Rechter Fensterfalz</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-Falz</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>Nach jeder Seite</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>Nach jedem Dokument</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Nach jedem Exemplar</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>Nach dem Auftrag</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Binden</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linke Kante</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Obere Kante</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechte Kante</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Untere Kante</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>Bündeln</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Offset each set</source>
        <translation>Jeden Satz versetzen</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Beschichten</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminieren</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, randlos</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 in</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Umschlag %1</translation>
    </message>
    <message>
        <source>Index card %1</source>
        <translation>Karteikarte %1</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>Foto %1</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 dpi</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Postkarte</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Doppelpostkarte</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>the system has no thread to read it on; close programs and choose it again</source>
        <translation>das System kann keine weitere Aufgabe starten, um es zu lesen; schließen Sie Programme und wählen Sie es noch einmal</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>Das Bild wird gelesen…</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>Das Bild lässt sich nicht zeigen.</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>PDF, PostScript, text and pictures</source>
        <translation>PDF, PostScript, Text und Bilder</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more)</source>
        <translation>
            <numerusform>%1 (und %n weiterer Hinweis)</numerusform>
            <numerusform>%1 (und %n weitere Hinweise)</numerusform>
        </translation>
    </message>
    <message>
        <source>its Info.plist names no factory for print dialog panels</source>
        <translation>die Info.plist nennt keine Fabrik für Bereiche des Druckdialogs</translation>
    </message>
    <message>
        <source>it has no function %1</source>
        <translation>es gibt keine Funktion %1</translation>
    </message>
    <message>
        <source>%1 makes no panels</source>
        <translation>%1 liefert keine Bereiche</translation>
    </message>
    <message>
        <source>it has no panel interface, status %1</source>
        <translation>keine Schnittstelle für Bereiche, Status %1</translation>
    </message>
    <message>
        <source>Prologue failed with %1</source>
        <translation>Prologue ist mit %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Initialize failed with %1</source>
        <translation>Initialize ist mit %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1: panel left out: %2</source>
        <translation>%1: Bereich weggelassen: %2</translation>
    </message>
    <message>
        <source>%1: the panel %2 could not be opened</source>
        <translation>%1: der Bereich %2 ließ sich nicht öffnen</translation>
    </message>
    <message>
        <source>there is no such panel here; there are: %1</source>
        <translation>einen solchen Bereich gibt es hier nicht; es gibt: %1</translation>
    </message>
    <message>
        <source>there are no tabs</source>
        <translation>es gibt keine Registerkarten</translation>
    </message>
    <message>
        <source>the tab cannot be chosen</source>
        <translation>die Registerkarte lässt sich nicht wählen</translation>
    </message>
    <message>
        <source>there is no such tab here; there are: %1</source>
        <translation>eine solche Registerkarte gibt es hier nicht; es gibt: %1</translation>
    </message>
    <message>
        <source>it is in tab %1, %2</source>
        <translation>zu finden auf Registerkarte %1, %2</translation>
    </message>
    <message>
        <source>it is in panel %1</source>
        <translation>zu finden im Bereich %1</translation>
    </message>
    <message>
        <source>it is in dialogs that are not open</source>
        <translation>zu finden in Dialogen, die nicht offen sind</translation>
    </message>
    <message>
        <source>it is in the dialog “%1”</source>
        <translation>zu finden im Dialog „%1“</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>this part that reads window descriptions is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>dieser Teil, der Fensterbeschreibungen liest, ist nicht bei den Bibliotheken des Programms installiert; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>this part that reads window descriptions cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>dieser Teil, der Fensterbeschreibungen liest, lässt sich nicht laden (%1); installieren Sie kelvo-print neu, mit den Paketen, die es braucht</translation>
    </message>
    <message>
        <source>this is not the part that reads window descriptions of kelvo-print %1; install kelvo-print anew</source>
        <translation>das ist nicht der Teil von kelvo-print %1, der Fensterbeschreibungen liest; installieren Sie kelvo-print neu</translation>
    </message>
    <message>
        <source>“%1” is of the class “%2”; use one of %3</source>
        <translation>„%1“ gehört zur Klasse „%2“; verwenden Sie eine von %3</translation>
    </message>
    <message>
        <source>“%1” has the control ID “%2”; write four characters, a blank and a number, such as “KPDE 102”</source>
        <translation>„%1“ hat die Kennung „%2“; schreiben Sie vier Zeichen, ein Leerzeichen und eine Zahl, etwa „KPDE 102“</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the control ID “%3”; give one of them another</source>
        <translation>„%1“ und „%2“ haben beide die Kennung „%3“; geben Sie einem davon eine andere</translation>
    </message>
    <message>
        <source>“%1” has the command “%2”; write four characters, such as “ok  ”</source>
        <translation>„%1“ hat den Befehl „%2“; schreiben Sie vier Zeichen, etwa „ok  “</translation>
    </message>
    <message>
        <source>there is no bundle to load the window from</source>
        <translation>es gibt kein Bündel, aus dem das Fenster geladen werden kann</translation>
    </message>
    <message>
        <source>the bundle has no such window description</source>
        <translation>das Bündel hat keine solche Fensterbeschreibung</translation>
    </message>
    <message>
        <source>%1: the window cannot be made: %2</source>
        <translation>%1: das Fenster lässt sich nicht erstellen: %2</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>%1 (printed)</source>
        <comment>the name of a file</comment>
        <translation>%1 (gedruckt)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>Zu druckende Dokumente wählen</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1, did you mean %2?</source>
        <translation>%1, meinten Sie %2?</translation>
    </message>
    <message>
        <source>%1; there are %2</source>
        <translation>%1; es gibt %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>where, and what is wrong there</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>clauses of one sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>members of a series</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>kelvo::CautionBar</name>
    <message>
        <source>Fi&amp;x</source>
        <translation>Behebe&amp;n</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Fix: %1</source>
        <translation>Beheben: %1</translation>
    </message>
    <message>
        <source>Changes the settings so that they can be used together</source>
        <translation>Ändert die Einstellungen so, dass sie zusammen verwendet werden können</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Diese Einstellungen lassen sich nicht zusammen verwenden</translation>
    </message>
    <message>
        <source>Before you print</source>
        <translation>Vor dem Drucken</translation>
    </message>
    <message>
        <source>Change one of them.</source>
        <translation>Ändern Sie eine davon.</translation>
    </message>
    <message>
        <source>Fix would do this:</source>
        <translation>„Beheben“ würde Folgendes tun:</translation>
    </message>
</context>
<context>
    <name>kelvo::DialogFoot</name>
    <message>
        <source>&amp;What Will Be Sent…</source>
        <translation>Was &amp;gesendet wird…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Drucken abbrechen</translation>
    </message>
    <message>
        <source>All settings of the job in words, before it is printed</source>
        <translation>Alle Einstellungen des Auftrags in Worten, bevor gedruckt wird</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern…</translation>
    </message>
    <message>
        <source>The pages as they would be printed, in a file</source>
        <translation>Die Seiten, wie sie gedruckt würden, in einer Datei</translation>
    </message>
    <message>
        <source>At once or later, and before which other jobs</source>
        <translation>Sofort oder später, und vor welchen anderen Aufträgen</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>Auftrag abbre&amp;chen</translation>
    </message>
    <message>
        <source>Takes the job back from the print server</source>
        <translation>Nimmt den Auftrag vom Druckserver zurück</translation>
    </message>
    <message>
        <source>When to Print…</source>
        <translation>Wann drucken…</translation>
    </message>
</context>
<context>
    <name>kelvo::DialogSession</name>
    <message>
        <source>The panels are not made for this device (%1).</source>
        <translation>Für dieses Gerät (%1) gibt es keine Geräteeinstellungen.</translation>
    </message>
    <message>
        <source>The panels are not made for this device (%1, made by %2).</source>
        <translation>Für dieses Gerät (%1, Hersteller %2) gibt es keine Geräteeinstellungen.</translation>
    </message>
    <message>
        <source>The panels could not start (%1). Installing them again may help.</source>
        <translation>Die Geräteeinstellungen konnten nicht starten (%1). Vielleicht hilft es, sie neu zu installieren.</translation>
    </message>
    <message>
        <source>The panels cannot be loaded: %1</source>
        <translation>Die Geräteeinstellungen lassen sich nicht laden: %1</translation>
    </message>
    <message>
        <source>Copies, pages, paper size and orientation work as usual.</source>
        <translation>Exemplare, Seiten, Papierformat und Ausrichtung funktionieren wie gewohnt.</translation>
    </message>
    <message>
        <source>Copies and pages work as usual. Paper size, orientation and collating are passed on; whether they are heeded is up to the printer.</source>
        <translation>Exemplare und Seiten funktionieren wie gewohnt. Papierformat, Ausrichtung und Sortieren werden weitergegeben; ob sie beachtet werden, liegt am Drucker.</translation>
    </message>
    <message>
        <source>No device panels for “%1”</source>
        <translation>Keine Geräteeinstellungen für „%1“</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentBar</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>The document that the preview shows, and Remove removes</source>
        <translation>Das Dokument, das die Vorschau zeigt und das „Entfernen“ entfernt</translation>
    </message>
    <message>
        <source>Document actions</source>
        <translation>Aktionen für Dokumente</translation>
    </message>
    <message>
        <source>Add or remove documents</source>
        <translation>Dokumente hinzufügen oder entfernen</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Print all as one job</source>
        <translation>Alle als einen Auftrag drucken</translation>
    </message>
    <message>
        <source>The pages follow one another, as if the files were one document</source>
        <translation>Die Seiten folgen aufeinander, als wären die Dateien ein Dokument</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Passwort eingeben…</translation>
    </message>
    <message>
        <source>%1 (sent)</source>
        <translation>%1 (gesendet)</translation>
    </message>
    <message>
        <source>%1 (locked)</source>
        <translation>%1 (gesperrt)</translation>
    </message>
    <message>
        <source>%1 (cannot be printed)</source>
        <translation>%1 (nicht druckbar)</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <comment>which document of how many, and its name</comment>
        <translation>%1 von %2: %3</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentOpening</name>
    <message>
        <source>There is no document to print.</source>
        <translation>Es gibt kein Dokument zum Drucken.</translation>
    </message>
    <message>
        <source>The document cannot be opened: %1</source>
        <translation>Das Dokument lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>type it in the window, or write it into a file of mode 0600 that --secret DOCUMENT=FILE names</source>
        <translation>geben Sie es im Fenster ein, oder schreiben Sie es in eine Datei mit den Rechten 0600, die --secret DOCUMENT=FILE nennt</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentPreview</name>
    <message>
        <source>This page cannot be shown.</source>
        <translation>Diese Seite lässt sich nicht zeigen.</translation>
    </message>
    <message>
        <source>This page takes too long to be shown. The printer may still print it.</source>
        <translation>Diese Seite zu zeigen dauert zu lange. Der Drucker kann sie vielleicht trotzdem drucken.</translation>
    </message>
    <message>
        <source>This page needs too much memory to be shown. The printer may still print it.</source>
        <translation>Diese Seite zu zeigen braucht zu viel Speicher. Der Drucker kann sie vielleicht trotzdem drucken.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>kelvo::Folder</name>
    <message>
        <source>Writing to %1…</source>
        <translation>Schreiben nach %1…</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Geschrieben nach %1</translation>
    </message>
</context>
<context>
    <name>kelvo::LayoutRows</name>
    <message>
        <source>%1 per sheet</source>
        <translation>%1 pro Blatt</translation>
    </message>
    <message>
        <source>&amp;Borders around pages</source>
        <translation>Ra&amp;hmen um Seiten</translation>
    </message>
    <message>
        <source>Odd and even pages, order, scaling, and several pages on a sheet</source>
        <translation>Ungerade und gerade Seiten, Reihenfolge, Skalierung und mehrere Seiten auf einem Blatt</translation>
    </message>
    <message>
        <source>Page layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Page layout: %1</source>
        <translation>Seitenlayout: %1</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>Seiten pro &amp;Blatt:</translation>
    </message>
    <message>
        <source>Percentage of a page’s own size</source>
        <translation>Prozent der eigenen Größe einer Seite</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>U&amp;mgekehrt</translation>
    </message>
    <message>
        <source>Sc&amp;aling:</source>
        <translation>Ska&amp;lierung:</translation>
    </message>
    <message>
        <source>The last page, or sheet, comes out first</source>
        <translation>Die letzte Seite, oder das letzte Blatt, kommt zuerst heraus</translation>
    </message>
    <message>
        <source>Where the next page lies</source>
        <translation>Wo die nächste Seite liegt</translation>
    </message>
    <message>
        <source>not scaled</source>
        <translation>nicht skaliert</translation>
    </message>
    <message>
        <source>reversed</source>
        <translation>umgekehrt</translation>
    </message>
    <message>
        <source>Of th&amp;ese:</source>
        <translation>Da&amp;von:</translation>
    </message>
</context>
<context>
    <name>kelvo::OptionsPane</name>
    <message>
        <source>Printer options</source>
        <translation>Druckeroptionen</translation>
    </message>
    <message>
        <source>This printer has no options of its own.</source>
        <translation>Dieser Drucker hat keine eigenen Optionen.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (not offered)</source>
        <translation>%1 (nicht angeboten)</translation>
    </message>
    <message>
        <source>Cannot be used together with other settings</source>
        <translation>Kann nicht zusammen mit anderen Einstellungen verwendet werden</translation>
    </message>
    <message>
        <source>The printer’s equipment leaves no other choice</source>
        <translation>Die Ausstattung des Druckers lässt keine andere Wahl</translation>
    </message>
</context>
<context>
    <name>kelvo::PresetMenu</name>
    <message>
        <source>Default settings</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Type a name for the preset.</source>
        <translation>Geben Sie einen Namen für die Voreinstellung ein.</translation>
    </message>
    <message>
        <source>“%1” is how the printer comes. Choose another name.</source>
        <translation>„%1“ ist der Zustand ab Werk. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Voreinstellung</translation>
    </message>
    <message>
        <source>&amp;Keep passcodes in this preset</source>
        <translation>&amp;PINs in dieser Voreinstellung aufbewahren</translation>
    </message>
    <message>
        <source>Whoever can read the preset can read them</source>
        <translation>Wer die Voreinstellung lesen kann, kann sie lesen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>A preset cannot have this name</source>
        <translation>Eine Voreinstellung kann nicht so heißen</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>Die Voreinstellung „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>There is a preset of this name. Its settings are lost when you replace it.</source>
        <translation>Es gibt eine Voreinstellung mit diesem Namen. Ihre Einstellungen gehen verloren, wenn Sie sie ersetzen.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>There is a preset “%1” already</source>
        <translation>Es gibt schon eine Voreinstellung „%1“</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Preset actions</source>
        <translation>Aktionen für Voreinstellungen</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Voreinstellungen speichern, umbenennen oder löschen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>%1*</source>
        <comment>a preset that was changed</comment>
        <translation>%1*</translation>
    </message>
    <message>
        <source>The preset “%1” cannot be read</source>
        <translation>Die Voreinstellung „%1“ lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>%1
The settings stay as they are.</source>
        <translation>%1
Die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The preset “%1” was not saved</source>
        <translation>Die Voreinstellung „%1“ wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Voreinstellung umbenennen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>The preset “%1” was not renamed</source>
        <translation>Die Voreinstellung „%1“ wurde nicht umbenannt</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Die Voreinstellung „%1“ löschen?</translation>
    </message>
    <message>
        <source>The settings in this window stay as they are.</source>
        <translation>Die Einstellungen in diesem Fenster bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The preset “%1” was not deleted</source>
        <translation>Die Voreinstellung „%1“ wurde nicht gelöscht</translation>
    </message>
    <message>
        <source>A star means that settings have changed since it was chosen.</source>
        <translation>Ein Stern bedeutet, dass seit der Auswahl Einstellungen geändert wurden.</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>“%1” is what was printed with last. Choose another name.</source>
        <translation>„%1“ ist das, womit zuletzt gedruckt wurde. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintDialog</name>
    <message>
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>„%1“ drucken</translation>
    </message>
    <message>
        <source>Not to be printed like this. Pages: %1</source>
        <translation>So kann nicht gedruckt werden. Seiten: %1</translation>
    </message>
    <message>
        <source>Type the pages to print.</source>
        <translation>Geben Sie die Seiten ein, die gedruckt werden sollen.</translation>
    </message>
    <message>
        <source>Fix and Print</source>
        <translation>Beheben und drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Trotzdem drucken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>there are no panels</source>
        <translation>es gibt keine Bereiche</translation>
    </message>
    <message>
        <source>the left column</source>
        <translation>die linke Spalte</translation>
    </message>
    <message>
        <source>“%1” is locked with a password.</source>
        <translation>„%1“ ist mit einem Passwort gesperrt.</translation>
    </message>
    <message>
        <source>What was printed with is not kept: %1</source>
        <translation>Womit gedruckt wurde, wird nicht aufbewahrt: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintFlow</name>
    <message>
        <source>“%1” was not printed</source>
        <translation>„%1“ wurde nicht gedruckt</translation>
    </message>
    <message>
        <source>The printer’s settings have not come yet.</source>
        <translation>Die Einstellungen des Druckers sind noch nicht da.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a headline and what follows it</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>The document is not open yet.</source>
        <translation>Das Dokument ist noch nicht offen.</translation>
    </message>
    <message>
        <source>“%1” is a device without a queue. Start kelvo-print with --to DIR to write the job into a folder, or with -d to print to a queue.</source>
        <translation>„%1“ ist ein Gerät ohne Warteschlange. Starten Sie kelvo-print mit --to DIR, um den Auftrag in einen Ordner zu schreiben, oder mit -d, um in eine Warteschlange zu drucken.</translation>
    </message>
    <message>
        <source>No printer was named, and there is no default printer. Name one with -d; --list-printers says which there are.</source>
        <translation>Es wurde kein Drucker genannt, und es gibt keinen Standarddrucker. Nennen Sie mit -d einen; --list-printers zeigt, welche es gibt.</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Seiten: %1</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>Diese Einstellungen lassen sich nicht zusammen verwenden</translation>
    </message>
    <message>
        <source>The settings could not be written. %1</source>
        <translation>Die Einstellungen konnten nicht geschrieben werden. %1</translation>
    </message>
    <message>
        <source>interrupted while the job was being sent; it may have been accepted: look at the printer’s queue before you print again</source>
        <translation>unterbrochen, während der Auftrag gesendet wurde; vielleicht wurde er angenommen: Sehen Sie in der Warteschlange des Druckers nach, bevor Sie noch einmal drucken</translation>
    </message>
    <message>
        <source>%1: not sent, this printer does not have it</source>
        <translation>%1: nicht gesendet, hat dieser Drucker nicht</translation>
    </message>
    <message>
        <source>%1: not sent, the print server has no description of this printer</source>
        <translation>%1: nicht gesendet, der Druckserver hat keine Beschreibung dieses Druckers</translation>
    </message>
    <message>
        <source>%1: not sent, this printer reads no tickets</source>
        <translation>%1: nicht gesendet, dieser Drucker liest keine Tickets</translation>
    </message>
    <message>
        <source>Not all documents are open yet.</source>
        <translation>Noch sind nicht alle Dokumente offen.</translation>
    </message>
    <message>
        <source>Pages of %1: %2</source>
        <translation>Seiten von %1: %2</translation>
    </message>
    <message>
        <source>Sending %1 of %2: %3</source>
        <translation>%1 von %2 wird gesendet: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) written</source>
        <translation>
            <numerusform>%n Dokument geschrieben</numerusform>
            <numerusform>%n Dokumente geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) sent to %1</source>
        <translation>
            <numerusform>%n Dokument an %1 gesendet</numerusform>
            <numerusform>%n Dokumente an %1 gesendet</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a document, and its job</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No document was sent.</source>
        <translation>Kein Dokument wurde gesendet.</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>Gesendet: %1.</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>Nicht gesendet: %1.</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintRun</name>
    <message>
        <source>The job was cancelled.</source>
        <translation>Der Auftrag wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Nothing was sent: %1.</source>
        <translation>Es wurde nichts gesendet – %1.</translation>
    </message>
</context>
<context>
    <name>Printers</name>
    <message>
        <source>takes no jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>printer and its state</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>printer and its state</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a printer’s state and why</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>ausgewählt</translation>
    </message>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterChooser</name>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Name, place or model</source>
        <translation>Name, Standort oder Modell</translation>
    </message>
    <message>
        <source>Search for a printer</source>
        <translation>Drucker suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>No printer has this in its name, place or model.</source>
        <translation>Kein Drucker hat das in Name, Standort oder Modell.</translation>
    </message>
    <message numerus="yes">
        <source>%n printer(s)</source>
        <translation>
            <numerusform>%n Drucker</numerusform>
            <numerusform>%n Drucker</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n printer(s)</source>
        <translation>
            <numerusform>%1 von %n Drucker</numerusform>
            <numerusform>%1 von %n Druckern</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterPane</name>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Hochformat, umgekehrt</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Querformat, umgekehrt</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>S&amp;ortieren</translation>
    </message>
    <message>
        <source>Prin&amp;ter:</source>
        <translation>Dru&amp;cker:</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>&amp;Voreinstellung:</translation>
    </message>
    <message>
        <source>Each copy is complete before the next one begins</source>
        <translation>Jedes Exemplar ist vollständig, bevor das nächste beginnt</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>E&amp;xemplare:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>Zu druckende Seiten</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>&amp;Papierformat:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>A&amp;usrichtung:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>A device without a queue: nothing can be sent to it</source>
        <translation>Ein Gerät ohne Warteschlange: Es kann nichts dorthin gesendet werden</translation>
    </message>
    <message>
        <source>As the printer has it</source>
        <translation>Wie im Drucker eingestellt</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Benutzerdefiniert: %1</translation>
    </message>
    <message>
        <source>%1 (not on this printer)</source>
        <translation>%1 (nicht auf diesem Drucker)</translation>
    </message>
    <message>
        <source>such as 1-3, 7</source>
        <translation>etwa 1-3, 7</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Angezeigte Seite</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterSearch</name>
    <message>
        <source>Looking for printers</source>
        <translation>Drucker werden gesucht</translation>
    </message>
    <message>
        <source>The print server has not answered yet.</source>
        <translation>Der Druckserver hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>The print server does not answer</source>
        <translation>Der Druckserver antwortet nicht</translation>
    </message>
    <message>
        <source>The printers cannot be listed</source>
        <translation>Die Drucker lassen sich nicht auflisten</translation>
    </message>
    <message>
        <source>There is no printer</source>
        <translation>Es gibt keinen Drucker</translation>
    </message>
    <message>
        <source>Add one in the system’s printer settings, then try again.</source>
        <translation>Fügen Sie in den Druckereinstellungen des Systems einen hinzu und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>There is no printer “%1”</source>
        <translation>Es gibt keinen Drucker „%1“</translation>
    </message>
    <message>
        <source>The print server does not know it.</source>
        <translation>Der Druckserver kennt ihn nicht.</translation>
    </message>
    <message>
        <source>The print server does not know it</source>
        <translation>Der Druckserver kennt ihn nicht</translation>
    </message>
    <message>
        <source>Choose another printer, or try again.</source>
        <translation>Wählen Sie einen anderen Drucker oder versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Asking for the settings of “%1”</source>
        <translation>Die Einstellungen von „%1“ werden abgefragt</translation>
    </message>
    <message>
        <source>The print server’s description of them is damaged (%1).</source>
        <translation>Die Beschreibung, die der Druckserver davon hat, ist beschädigt (%1).</translation>
    </message>
    <message>
        <source>The settings of “%1” cannot be read</source>
        <translation>Die Einstellungen von „%1“ lassen sich nicht lesen</translation>
    </message>
    <message>
        <source>Try again, or choose another printer.</source>
        <translation>Versuchen Sie es noch einmal oder wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>The print server has no description of its settings.</source>
        <translation>Der Druckserver hat keine Beschreibung der Einstellungen.</translation>
    </message>
    <message>
        <source>the print server does not know it any more</source>
        <translation>der Druckserver kennt ihn nicht mehr</translation>
    </message>
</context>
<context>
    <name>kelvo::Queue</name>
    <message>
        <source>Sending to %1…</source>
        <translation>Wird an %1 gesendet…</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <comment>a job</comment>
        <translation>%1 gesendet</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what is wrong, and what the server said</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>kelvo::SentMessage</name>
    <message>
        <source>Cancelling %1…</source>
        <translation>%1 wird abgebrochen…</translation>
    </message>
</context>
<context>
    <name>kelvo::WaitingPane</name>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>kelvo::WindowColumns</name>
    <message>
        <source>Show or hide printer, pages and preview (F9)</source>
        <translation>Drucker, Seiten und Vorschau ein- oder ausblenden (F9)</translation>
    </message>
    <message>
        <source>Printer, pages and preview</source>
        <translation>Drucker, Seiten und Vorschau</translation>
    </message>
    <message>
        <source>Device Settings</source>
        <translation>Geräteeinstellungen</translation>
    </message>
    <message>
        <source>Printer and Paper</source>
        <translation>Drucker und Papier</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Where a file of the installation is missing or damaged -->
    <message>
        <source>Window Not Made Header</source>
        <translation>Das Fenster lässt sich nicht anzeigen</translation>
    </message>
    <message>
        <source>Panel Not Made Header</source>
        <translation>Der Bereich lässt sich nicht anzeigen</translation>
    </message>
    <message>
        <source>Not Made Message</source>
        <translation>Eine Datei der Druckersoftware fehlt oder ist beschädigt. Es wurde nichts geändert. Installieren Sie die Software neu oder zeigen Sie Ihrer Systemverwaltung diese Zeile:</translation>
    </message>
    <message>
        <source>Window Lacks Controls</source>
        <translation>In der Beschreibung fehlen Bedienelemente, die das Fenster braucht: %1</translation>
    </message>
    <!-- Buttons of every dialog -->
    <message>
        <source>OK Command</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remove Command</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel Command</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help Command</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Revert Command</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
</TS>

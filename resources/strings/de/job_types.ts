<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Passcodes -->
    <message>
        <source>Passcode:</source>
        <translation>&amp;PIN:</translation>
    </message>
    <message>
        <source>ConfirmPasscode:</source>
        <translation>PIN &amp;wiederholen:</translation>
    </message>
    <message>
        <source>Min-Max Digits</source>
        <translation>%1 bis %2 Ziffern</translation>
    </message>
    <message>
        <source>Show Passcode</source>
        <translation>PI&amp;N anzeigen</translation>
    </message>
    <message>
        <source>Passcode Required Header</source>
        <translation>Dieser Auftrag hat eine neue PIN: %3</translation>
    </message>
    <message>
        <source>Passcode Required Message</source>
        <translation>Die Felder waren leer, deshalb wurde die PIN %3 für Sie erzeugt. Notieren Sie sie: Sie muss am Gerät eingegeben werden. Wenn Sie eine eigene verwenden möchten, öffnen Sie dieses Fenster noch einmal und geben Sie %1 bis %2 Ziffern ein.</translation>
    </message>
    <!-- Secure print -->
    <message>
        <source>SecurePrintSetupTitle</source>
        <translation>Sicheren Druck einrichten</translation>
    </message>
    <message>
        <source>Secure Print Hint</source>
        <translation>Das Gerät hält den Auftrag zurück, bis dort die PIN eingegeben wird. Lassen Sie beide Felder leer, damit eine PIN für Sie erzeugt wird.</translation>
    </message>
    <message>
        <source>Passcode Not Set Hint</source>
        <translation>Noch keine PIN: Ohne PIN wird der Auftrag nicht gedruckt.</translation>
    </message>
    <!-- Delayed print -->
    <message>
        <source>TimeToPrint:</source>
        <translation>&amp;Druckzeit:</translation>
    </message>
    <message>
        <source>Prints Today</source>
        <translation>Der Auftrag wird heute um %1 gedruckt.</translation>
    </message>
    <message>
        <source>Prints Tomorrow</source>
        <translation>Der Auftrag wird morgen um %1 gedruckt.</translation>
    </message>
    <!-- Saved job -->
    <message>
        <source>Save to Mailbox Title</source>
        <translation>Gespeicherten Auftrag einrichten</translation>
    </message>
    <message>
        <source>Job Name:</source>
        <translation>Auf&amp;tragsname:</translation>
    </message>
    <message>
        <source>Use Document Name</source>
        <translation>Dokumentnamen &amp;verwenden</translation>
    </message>
    <message>
        <source>Mailbox Number Spoken</source>
        <translation>Mailbox, %1 bis %2</translation>
    </message>
    <message>
        <source>Mailbox Number Label</source>
        <translation>&amp;Mailbox (%1 bis %2):</translation>
    </message>
    <message>
        <source>Mailbox Hint</source>
        <translation>Ohne Nummer wird der Auftrag im öffentlichen Standardordner des Geräts aufbewahrt.</translation>
    </message>
    <message>
        <source>Mailbox Elsewhere Hint</source>
        <translation>Der Auftrag wird in %1 aufbewahrt; das ist keine der Mailboxen. Geben Sie eine Nummer ein, um ihn in einer Mailbox aufzubewahren.</translation>
    </message>
    <message>
        <source>Mailbox Not Elsewhere Hint</source>
        <translation>In der Liste steht noch %1, wo der Auftrag aufbewahrt werden sollte.</translation>
    </message>
    <message>
        <source>Invalid Mailbox Headline</source>
        <translation>Es gibt keine Mailbox mit dieser Nummer</translation>
    </message>
    <message>
        <source>Invalid Mailbox Number Error</source>
        <translation>Geben Sie eine Nummer von %1 bis %2 ein oder lassen Sie das Feld leer, um den Auftrag im öffentlichen Standardordner des Geräts aufzubewahren.</translation>
    </message>
    <message>
        <source>Save Option:</source>
        <translation>&amp;Speicheroption:</translation>
    </message>
    <message>
        <source>File Format:</source>
        <translation>&amp;Dateiformat:</translation>
    </message>
    <message>
        <source>File Format Picture</source>
        <translation>Dateiformat</translation>
    </message>
    <message>
        <source>Saved Job Format TIFF</source>
        <translation>TIFF, eine Datei je Seite</translation>
    </message>
    <message>
        <source>Saved Job Format Multi-Page TIFF</source>
        <translation>TIFF, alle Seiten in einer Datei</translation>
    </message>
    <message>
        <source>Saved Job Format PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Saved Job Format Raster</source>
        <translation>Geräteraster</translation>
    </message>
    <message>
        <source>Saved Job Format Scalable Raster</source>
        <translation>Geräteraster, beliebige Auflösung</translation>
    </message>
    <message>
        <source>SecureSavedJob:</source>
        <translation>&amp;Gespeicherten Auftrag mit einer PIN sperren</translation>
    </message>
    <message>
        <source>Saved Job Passcode Hint</source>
        <translation>Für OK sind %1 bis %2 Ziffern nötig oder gar keine: Dann wird eine PIN für Sie erzeugt.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Passcode in Words</source>
        <translation>PIN:</translation>
    </message>
    <message>
        <source>Passcode Is Set</source>
        <translation>ist festgelegt</translation>
    </message>
    <message>
        <source>Mailbox in Words</source>
        <translation>Mailbox:</translation>
    </message>
    <message>
        <source>Credit Card in Words</source>
        <translation>Kreditkarte:</translation>
    </message>
</context>
</TS>

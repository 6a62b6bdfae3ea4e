<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Add Recipient Title</source>
        <translation>Empfänger hinzufügen</translation>
    </message>
    <message>
        <source>Edit Recipient Title</source>
        <translation>Empfänger bearbeiten</translation>
    </message>
    <message>
        <source>Recipient First Name:</source>
        <translation>&amp;Vorname:</translation>
    </message>
    <message>
        <source>Recipient Last Name:</source>
        <translation>&amp;Nachname:</translation>
    </message>
    <message>
        <source>Recipient Fax Number:</source>
        <translation>&amp;Faxnummer:</translation>
    </message>
    <message>
        <source>Recipient Organization:</source>
        <translation>Fi&amp;rma:</translation>
    </message>
    <message>
        <source>Recipient Phone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>Recipient Email:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Recipient Mailbox:</source>
        <translation>&amp;Mailbox:</translation>
    </message>
    <message>
        <source>Recipient Mailbox Hint</source>
        <translation>Mailbox des Empfangsgeräts; leer: Ausgabefach.</translation>
    </message>
    <message>
        <source>Fax Number Missing Hint</source>
        <translation>Ohne Nummer kann das Fax nicht gesendet werden.</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Hint</source>
        <translation>Keines dieser Zeichen kann gewählt werden.</translation>
    </message>
    <message>
        <source>Fax Number Dialed Hint</source>
        <translation>Gewählt wird: %1</translation>
    </message>
    <message>
        <source>Fax Number Too Long Hint</source>
        <translation>%1 Zeichen davon würden gewählt; Geräte wählen höchstens %2.</translation>
    </message>
    <message>
        <source>Fax Number Label Hint</source>
        <translation>Art der Nummer: %1</translation>
    </message>
    <message>
        <source>Fax Label Work</source>
        <translation>Geschäftlich</translation>
    </message>
    <message>
        <source>Fax Label Home</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>Fax Label Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Fax Number Refused Header</source>
        <translation>Die Faxnummer fehlt</translation>
    </message>
    <message>
        <source>Fax Number Missing Message</source>
        <translation>Geben Sie die Nummer ein, an die das Fax gesendet wird.</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Message</source>
        <translation>Kein Zeichen von „%1“ kann gewählt werden. Geben Sie Ziffern ein; auch * # = : ! , / S $ &lt; &gt; A B C D werden gewählt.</translation>
    </message>
    <message>
        <source>Address Book Title</source>
        <translation>Aus dem Adressbuch hinzufügen</translation>
    </message>
    <message>
        <source>People Source:</source>
        <translation>Suchen &amp;in:</translation>
    </message>
    <message>
        <source>People Source Address Book</source>
        <translation>Adressbuch</translation>
    </message>
    <message>
        <source>People Source Recent</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>People Source Cards</source>
        <translation>vCard-Dateien</translation>
    </message>
    <message>
        <source>Choose Cards Command</source>
        <translation>&amp;vCard-Dateien…</translation>
    </message>
    <message>
        <source>Clear Recent Command</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>People Search:</source>
        <translation>&amp;Suche:</translation>
    </message>
    <message>
        <source>People Search Hint</source>
        <translation>Name, Firma, E-Mail oder Nummer</translation>
    </message>
    <message>
        <source>People List</source>
        <translation>Gefundene Personen und Gruppen</translation>
    </message>
    <message>
        <source>People Name Column</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>People Organization Column</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>People Number Column</source>
        <translation>Faxnummer</translation>
    </message>
    <message>
        <source>People State Column</source>
        <translation>Dieses Fax</translation>
    </message>
    <message>
        <source>People In List</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>People Number With Label</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>People Group</source>
        <translation>Gruppe, niemand mit Faxnummer</translation>
    </message>
    <message>
        <source>People Group of One</source>
        <translation>Gruppe, 1 Person</translation>
    </message>
    <message>
        <source>People Group of Several</source>
        <translation>Gruppe, %1 Personen</translation>
    </message>
    <message>
        <source>Reading Address Book</source>
        <translation>Das Adressbuch wird gelesen…</translation>
    </message>
    <message>
        <source>Reading Cards</source>
        <translation>Die Dateien werden gelesen…</translation>
    </message>
    <message>
        <source>Person Without Name</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>Books Unread</source>
        <translation>Diese Adressbücher ließen sich nicht lesen: %1.</translation>
    </message>
    <message>
        <source>Address Book Unread</source>
        <translation>Das Adressbuch lässt sich nicht lesen – %1.</translation>
    </message>
    <message>
        <source>Address Book Unread Advice</source>
        <translation>Zuletzt verwendete Empfänger und vCard-Dateien können trotzdem hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Address Book Empty</source>
        <translation>Das Adressbuch ist leer.</translation>
    </message>
    <message>
        <source>Recent Empty</source>
        <translation>Bisher wurde niemandem ein Fax gesendet.</translation>
    </message>
    <message>
        <source>Cards Empty</source>
        <translation>Ziehen Sie vCard-Dateien hierher oder wählen Sie sie oben.</translation>
    </message>
    <message>
        <source>Nobody Has Fax Number</source>
        <translation>Niemand hier hat eine Faxnummer.</translation>
    </message>
    <message>
        <source>Nobody Found</source>
        <translation>Niemand gefunden.</translation>
    </message>
    <message>
        <source>One Without Fax Number</source>
        <translation>1 Person ohne Faxnummer wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>People Without Fax Number</source>
        <translation>%1 Personen ohne Faxnummer werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>Nobody Added</source>
        <translation>Niemand wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>One Person Added</source>
        <translation>1 Empfänger wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>People Added</source>
        <translation>%1 Empfänger wurden hinzugefügt.</translation>
    </message>
    <message>
        <source>One Already There</source>
        <translation>1 Empfänger steht schon in der Liste und wurde ausgelassen.</translation>
    </message>
    <message>
        <source>People Already There</source>
        <translation>%1 Empfänger stehen schon in der Liste und wurden ausgelassen.</translation>
    </message>
    <message>
        <source>One Not Added Again</source>
        <translation>1 wurde nicht noch einmal hinzugefügt.</translation>
    </message>
    <message>
        <source>Not Added Again</source>
        <translation>%1 wurden nicht noch einmal hinzugefügt.</translation>
    </message>
    <message>
        <source>Members Without Number</source>
        <translation>Ohne Faxnummer: %1</translation>
    </message>
    <message>
        <source>Names and Others</source>
        <translation>%1 und %2 andere</translation>
    </message>
    <message>
        <source>Add People Command</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Close Picker Command</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Clear Recent Header</source>
        <translation>Die zuletzt verwendeten Empfänger löschen?</translation>
    </message>
    <message>
        <source>Clear Recent Message</source>
        <translation>Sie lassen sich nicht zurückholen. Die Liste dieses Faxes bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Clear Recent Failed</source>
        <translation>Die zuletzt verwendeten Empfänger konnten nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Clear Recent Failed Message</source>
        <translation>Prüfen Sie, ob in den Ordner Ihrer Einstellungen geschrieben werden kann.</translation>
    </message>
    <message>
        <source>Clear Recent</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cards Chooser</source>
        <translation>vCard-Dateien</translation>
    </message>
    <message>
        <source>Cards Kinds</source>
        <translation>vCard-Dateien</translation>
    </message>
    <message>
        <source>Cards All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Cards Problems Header</source>
        <translation>Nicht alle Visitenkarten wurden gelesen</translation>
    </message>
    <message>
        <source>Cards Damaged One</source>
        <translation>%1: 1 Visitenkarte ist beschädigt und wurde ausgelassen.</translation>
    </message>
    <message>
        <source>Cards Damaged Several</source>
        <translation>%1: %2 beschädigte Visitenkarten wurden ausgelassen.</translation>
    </message>
    <message>
        <source>Cards Not Local</source>
        <translation>%1 ist nicht auf diesem Computer; speichern Sie die Datei zuerst hier.</translation>
    </message>
    <message>
        <source>Cards More Problems</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>No Thread to Read With</source>
        <translation>Das System kann keine weitere Aufgabe starten; schließen Sie andere Programme und versuchen Sie es noch einmal.</translation>
    </message>
</context>
</TS>

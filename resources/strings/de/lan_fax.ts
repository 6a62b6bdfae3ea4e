<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Duplicate Recipient Header</source>
        <translation>Dieser Empfänger steht schon in der Liste</translation>
    </message>
    <message>
        <source>Duplicate Recipient Message</source>
        <translation>%1 (%2) erhält dieses Fax bereits. Möchten Sie denselben Empfänger noch einmal hinzufügen?</translation>
    </message>
    <message>
        <source>Remove One Recipient Header</source>
        <translation>Diesen Empfänger entfernen?</translation>
    </message>
    <message>
        <source>Remove One Recipient Message</source>
        <translation>%1 (%2) erhält dieses Fax dann nicht.</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Header</source>
        <translation>Diese Empfänger entfernen?</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Message</source>
        <translation>%1 Empfänger erhalten dieses Fax dann nicht.</translation>
    </message>
    <message>
        <source>From Label</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To Label</source>
        <translation>An:</translation>
    </message>
    <message>
        <source>Notes Label</source>
        <translation>Bemerkungen:</translation>
    </message>
    <message>
        <source>Phone Label</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Fax Label</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>LAN Fax Title</source>
        <translation>Fax einrichten</translation>
    </message>
    <message>
        <source>Fax Tabs</source>
        <translation>Teile der Faxeinstellungen</translation>
    </message>
    <message>
        <source>Fax Recipients Tab</source>
        <translation>E&amp;mpfänger</translation>
    </message>
    <message>
        <source>Fax Options Tab</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>Cover Sheet Tab</source>
        <translation>&amp;Deckblatt</translation>
    </message>
    <message>
        <source>Fax Recipients</source>
        <translation>Faxempfänger</translation>
    </message>
    <message>
        <source>Recipient Name Column</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Recipient Number Column</source>
        <translation>Faxnummer</translation>
    </message>
    <message>
        <source>Recipient Organization Column</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Add Recipient Command</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>Address Book Command</source>
        <translation>&amp;Adressbuch…</translation>
    </message>
    <message>
        <source>Edit Recipient Command</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>Remove Recipients Command</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Save Group Command</source>
        <translation>Als &amp;Gruppe speichern…</translation>
    </message>
    <message>
        <source>Remove All Recipients Command</source>
        <translation>A&amp;lle entfernen</translation>
    </message>
    <message>
        <source>No Recipients Yet</source>
        <translation>Noch erhält niemand dieses Fax. Fügen Sie mindestens einen Empfänger hinzu.</translation>
    </message>
    <message>
        <source>One Recipient</source>
        <translation>1 Empfänger</translation>
    </message>
    <message>
        <source>Number of Recipients</source>
        <translation>%1 Empfänger</translation>
    </message>
    <message>
        <source>No Address Book Hint</source>
        <translation>Die Liste kann nicht als Gruppe gespeichert werden – %1.</translation>
    </message>
    <message>
        <source>Confirmation Sheet:</source>
        <translation>Sendebes&amp;tätigung:</translation>
    </message>
    <message>
        <source>Confirmation Sheet Tip</source>
        <translation>Das Gerät druckt ein Blatt, auf dem steht, ob das Fax angekommen ist.</translation>
    </message>
    <message>
        <source>Send Speed:</source>
        <translation>Se&amp;ndegeschwindigkeit:</translation>
    </message>
    <message>
        <source>Send Speed Tip</source>
        <translation>Automatisch passt fast immer; eine feste Geschwindigkeit hilft bei schlechter Leitung.</translation>
    </message>
    <message>
        <source>Fax Resolution:</source>
        <translation>Fa&amp;xauflösung:</translation>
    </message>
    <message>
        <source>Fax Resolution Tip</source>
        <translation>Feinere Seiten sind besser lesbar und brauchen länger.</translation>
    </message>
    <message>
        <source>Send Time:</source>
        <translation>Sendezeit:</translation>
    </message>
    <message>
        <source>Send Now</source>
        <translation>S&amp;ofort</translation>
    </message>
    <message>
        <source>Send At:</source>
        <translation>&amp;Um:</translation>
    </message>
    <message>
        <source>Send Time Field</source>
        <translation>Uhrzeit, zu der das Fax gesendet wird</translation>
    </message>
    <message>
        <source>Sent Today</source>
        <translation>Das Fax wird heute um %1 gesendet.</translation>
    </message>
    <message>
        <source>Sent Tomorrow</source>
        <translation>Das Fax wird morgen um %1 gesendet.</translation>
    </message>
    <message>
        <source>Sent Later</source>
        <translation>Das Fax wird am %1 um %2 gesendet.</translation>
    </message>
    <message>
        <source>Fax Dialing Options:</source>
        <translation>Anwahl:</translation>
    </message>
    <message>
        <source>Dialing Prefix</source>
        <translation>&amp;Zuerst Vorwahl wählen:</translation>
    </message>
    <message>
        <source>Dialing Prefix Field</source>
        <translation>Vorwahl</translation>
    </message>
    <message>
        <source>Dialing Prefix Hint</source>
        <translation>Bis zu %1 Zeichen, die Geräte wählen: Ziffern, * # = : ! , / S $ &lt; &gt; A B C D. Ein Komma wartet.</translation>
    </message>
    <message>
        <source>Cover Sheet Options:</source>
        <translation>De&amp;ckblatt:</translation>
    </message>
    <message>
        <source>Cover Sheet Setup Command</source>
        <translation>E&amp;inrichten…</translation>
    </message>
    <message>
        <source>Cover Sheet Notes:</source>
        <translation>Beme&amp;rkungen auf dem Deckblatt:</translation>
    </message>
    <message>
        <source>Cover Sheet Preview</source>
        <translation>Vorschau des Deckblatts</translation>
    </message>
    <message>
        <source>No Cover Sheet Hint</source>
        <translation>Das Fax beginnt mit dem Dokument.</translation>
    </message>
    <message>
        <source>Fax Preferences Command</source>
        <translation>&amp;Faxoptionen…</translation>
    </message>
    <message>
        <source>Max Characters Title</source>
        <translation>Zu lange Faxnummern</translation>
    </message>
    <message>
        <source>Max Characters Message</source>
        <translation>Geräte wählen höchstens %1 Zeichen einschließlich der Vorwahl. Diese Nummern haben mehr: Kürzen Sie sie oder entfernen Sie die Empfänger.</translation>
    </message>
    <message>
        <source>Too Long Recipients</source>
        <translation>Empfänger mit zu langen Nummern</translation>
    </message>
    <message>
        <source>Remove All Too Long Command</source>
        <translation>&amp;Alle entfernen</translation>
    </message>
    <message>
        <source>Nothing Too Long</source>
        <translation>Jetzt können alle Nummern gewählt werden.</translation>
    </message>
    <message>
        <source>Save Group Title</source>
        <translation>Empfänger als Gruppe speichern</translation>
    </message>
    <message>
        <source>Group Name:</source>
        <translation>&amp;Name der Gruppe:</translation>
    </message>
    <message>
        <source>Saving Group</source>
        <translation>Im Adressbuch wird gespeichert…</translation>
    </message>
    <message>
        <source>Group Not Saved Header</source>
        <translation>Die Gruppe wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>Group Not Saved Message</source>
        <translation>Das Adressbuch hat nicht alles angenommen. Versuchen Sie es noch einmal oder prüfen Sie, ob in das Adressbuch geschrieben werden kann.</translation>
    </message>
    <message>
        <source>Required Field Header</source>
        <translation>Die Gruppe braucht einen Namen</translation>
    </message>
    <message>
        <source>Group Name Required Message</source>
        <translation>Geben Sie den Namen ein, unter dem das Adressbuch diese Empfänger zeigen soll.</translation>
    </message>
    <message>
        <source>Fax Preferences Dialog Title</source>
        <translation>Faxoptionen</translation>
    </message>
    <message>
        <source>User Preferences</source>
        <translation>Nachfragen, bevor</translation>
    </message>
    <message>
        <source>Prompt Duplicate Recipient</source>
        <translation>ein Empfänger hinzugefügt wird, &amp;der schon in der Liste steht</translation>
    </message>
    <message>
        <source>Prompt Remove Recipient</source>
        <translation>&amp;Empfänger entfernt werden</translation>
    </message>
    <message>
        <source>Nameless in Words</source>
        <translation>(ohne Namen und Nummer)</translation>
    </message>
    <message>
        <source>Undialed in Words</source>
        <translation>%1 (keine Nummer zum Wählen)</translation>
    </message>
    <message>
        <source>Too Long in Words</source>
        <translation>%1 (zu lang zum Wählen)</translation>
    </message>
    <message>
        <source>And More Recipients</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>No Recipients in Words</source>
        <translation>noch niemand; fügen Sie Empfänger in den Faxeinstellungen hinzu</translation>
    </message>
    <message>
        <source>Dialing Prefix in Words</source>
        <translation>Vorwahl</translation>
    </message>
    <message>
        <source>Cover Sheet in Short</source>
        <translation>mit Deckblatt</translation>
    </message>
    <message>
        <source>Cover Sheet in Words</source>
        <translation>Faxdeckblatt</translation>
    </message>
    <message>
        <source>Cover Image in Words</source>
        <translation>Deckblattbild</translation>
    </message>
    <message>
        <source>Cover Image Absent in Words</source>
        <translation>„%1“ gehört nicht zu den Deckblattbildern auf diesem Computer</translation>
    </message>
</context>
</TS>

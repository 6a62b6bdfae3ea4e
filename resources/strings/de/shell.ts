<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PDE Shell</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Vorige Registerkarte</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nächste Registerkarte</translation>
    </message>
    <message>
        <source>Tab Selector</source>
        <translation>Geräteeinstellungen</translation>
    </message>
    <message>
        <source>Advanced Introduction</source>
        <translation>Einstellungen, die bei den meisten Aufträgen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Booklet Image Order:</source>
        <translation>Sei&amp;tenfolge der Broschüre:</translation>
    </message>
    <message>
        <source>Booklet Image Order</source>
        <translation>Seitenfolge der Broschüre</translation>
    </message>
    <message>
        <source>Booklet Image Order Hint</source>
        <translation>Die Richtung, in der die Seiten einer Broschüre aufeinander folgen.</translation>
    </message>
    <message>
        <source>Banner Sheet:</source>
        <translation>&amp;Begleitblatt:</translation>
    </message>
    <message>
        <source>Banner Sheet</source>
        <translation>Begleitblatt</translation>
    </message>
    <message>
        <source>Banner Sheet Hint</source>
        <translation>Ein Blatt vor dem Auftrag, auf dem steht, wem er gehört.</translation>
    </message>
    <message>
        <source>Request Offset:</source>
        <translation>V&amp;ersatz anfordern:</translation>
    </message>
    <message>
        <source>Request Offset</source>
        <translation>Versatz anfordern</translation>
    </message>
    <message>
        <source>Request Offset Hint</source>
        <translation>Verschiebt jeden fertigen Satz im Ausgabefach, sodass die Sätze leicht auseinanderzuhalten sind.</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Label</source>
        <translation>&amp;Kante der Einzelblattzufuhr:</translation>
    </message>
    <message>
        <source>Bypass Feed Edge</source>
        <translation>Kante der Einzelblattzufuhr</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Hint</source>
        <translation>Die Kante des Papiers, die zuerst in die Einzelblattzufuhr eingelegt wird.</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>&amp;Info…</translation>
    </message>
    <message>
        <source>About Title</source>
        <translation>Info zu den Corvane-Einstellungen</translation>
    </message>
    <message>
        <source>About Product</source>
        <translation>Geräteeinstellungen für Kelvo Corvane</translation>
    </message>
    <message>
        <source>About Description</source>
        <translation>Papier, Endverarbeitung und Auftragseinstellungen der Corvane-Geräte im Druckdialog.</translation>
    </message>
    <message>
        <source>About Picture</source>
        <translation>Das Gerät mit seiner Ausstattung</translation>
    </message>
    <message>
        <source>About Panels:</source>
        <translation>Bereiche:</translation>
    </message>
    <message>
        <source>About Program:</source>
        <translation>Programm:</translation>
    </message>
    <message>
        <source>About Device:</source>
        <translation>Gerät:</translation>
    </message>
    <message>
        <source>About Device Not Known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>About Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>About PPD:</source>
        <translation>PPD-Datei:</translation>
    </message>
    <message>
        <source>About PPD Version</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>About Fitted:</source>
        <translation>Ausstattung:</translation>
    </message>
    <message>
        <source>About Nothing Fitted</source>
        <translation>nur das Grundgerät</translation>
    </message>
    <message>
        <source>About Paper Trays:</source>
        <translation>Papierfächer:</translation>
    </message>
    <message>
        <source>About Output Trays:</source>
        <translation>Ausgabefächer:</translation>
    </message>
    <message>
        <source>About System:</source>
        <translation>System:</translation>
    </message>
    <message>
        <source>About Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>About Locale:</source>
        <translation>Region:</translation>
    </message>
    <message>
        <source>About Window System:</source>
        <translation>Fenstersystem:</translation>
    </message>
    <message>
        <source>About Libraries:</source>
        <translation>Verwendete Bibliotheken:</translation>
    </message>
    <message>
        <source>About Libraries Label</source>
        <translation>&amp;Verwendete Bibliotheken:</translation>
    </message>
    <message>
        <source>About Libraries</source>
        <translation>Verwendete Bibliotheken</translation>
    </message>
    <message>
        <source>About Library</source>
        <translation>%1 – %2 – %3</translation>
    </message>
    <message>
        <source>About Libraries Hint</source>
        <translation>Mit Lizenzen und wichtigsten Urhebern. Die Lizenzen der Bibliotheken, die diese mitbringen, stehen in den Paketen Ihres Systems.</translation>
    </message>
    <message>
        <source>About Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>About Copy Hint</source>
        <translation>Kopiert all dies und Angaben zu Ihrem System für eine Supportanfrage. Namen von Personen und PINs sind nicht dabei.</translation>
    </message>
    <message>
        <source>About Copied</source>
        <translation>In die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Header</source>
        <translation>Prüfen Sie die PIN</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Message</source>
        <translation>Der Auftrag braucht eine PIN aus %1 bis %2 Ziffern, dieselbe in beiden Feldern unter „Einrichten…“ neben der Auftragsart. Er wird gedruckt, wenn die PIN am Gerät eingegeben wird.</translation>
    </message>
    <message>
        <source>NoFaxDevice Header</source>
        <translation>Dieser Drucker sendet keine Faxe</translation>
    </message>
    <message>
        <source>NoFaxDevice Message</source>
        <translation>Wählen Sie einen Drucker, der Faxe sendet, oder eine andere Auftragsart.</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Header</source>
        <translation>Das Fax hat keine Empfänger</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Message</source>
        <translation>Fügen Sie in den Faxeinstellungen mindestens einen Empfänger hinzu, bevor Sie es senden.</translation>
    </message>
</context>
</TS>

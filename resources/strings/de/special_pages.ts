<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Covers -->
    <message>
        <source>Covers Title</source>
        <translation>Deckblätter</translation>
    </message>
    <message>
        <source>Cover Options:</source>
        <translation>D&amp;eckblätter:</translation>
    </message>
    <message>
        <source>Front and Back the Same</source>
        <translation>Vorn und hinten gleich</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Deckblatt vorn</translation>
    </message>
    <message>
        <source>Front Cover Left Out</source>
        <translation>Das Deckblatt vorn hat keine Papierquelle: Der Drucker lässt es weg.</translation>
    </message>
    <message>
        <source>Back Cover Left Out</source>
        <translation>Das Deckblatt hinten hat keine Papierquelle: Der Drucker lässt es weg.</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Deckblatt hinten</translation>
    </message>
    <message>
        <source>Front Cover Paper...</source>
        <translation>Papie&amp;r wählen</translation>
    </message>
    <message>
        <source>Front Cover Paper</source>
        <translation>Papier des Deckblatts vorn</translation>
    </message>
    <message>
        <source>Front Cover Summary</source>
        <translation>Papier des Deckblatts vorn, Zusammenfassung</translation>
    </message>
    <message>
        <source>Front Cover Source:</source>
        <translation>&amp;Papierquelle:</translation>
    </message>
    <message>
        <source>Front Cover Source</source>
        <translation>Papierquelle des Deckblatts vorn</translation>
    </message>
    <message>
        <source>Front Cover Sides:</source>
        <translation>Deckblatt &amp;ist:</translation>
    </message>
    <message>
        <source>Front Cover Sides</source>
        <translation>Deckblatt vorn ist</translation>
    </message>
    <message>
        <source>Cover Sides Tip</source>
        <translation>Auf ein bedrucktes Deckblatt kommt eine Seite des Dokuments; ein leeres oder vorbedrucktes bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Back Cover Paper...</source>
        <translation>Papier &amp;wählen</translation>
    </message>
    <message>
        <source>Back Cover Paper</source>
        <translation>Papier des Deckblatts hinten</translation>
    </message>
    <message>
        <source>Back Cover Summary</source>
        <translation>Papier des Deckblatts hinten, Zusammenfassung</translation>
    </message>
    <message>
        <source>Back Cover Source:</source>
        <translation>P&amp;apierquelle:</translation>
    </message>
    <message>
        <source>Back Cover Source</source>
        <translation>Papierquelle des Deckblatts hinten</translation>
    </message>
    <message>
        <source>Back Cover Sides:</source>
        <translation>&amp;Deckblatt ist:</translation>
    </message>
    <message>
        <source>Back Cover Sides</source>
        <translation>Deckblatt hinten ist</translation>
    </message>
    <message>
        <source>Cover Source Not Set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Front Cover Left Out Header</source>
        <translation>Das Deckblatt vorn entfällt</translation>
    </message>
    <message>
        <source>Back Cover Left Out Header</source>
        <translation>Das Deckblatt hinten entfällt</translation>
    </message>
    <message>
        <source>Covers Left Out Header</source>
        <translation>Beide Deckblätter entfallen</translation>
    </message>
    <message>
        <source>Cover Go Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cover Leave Out</source>
        <translation>Weglassen</translation>
    </message>
    <message>
        <source>Cover Source Missing</source>
        <translation>Der Drucker lässt dieses Deckblatt weg, bis Sie eine Papierquelle wählen.</translation>
    </message>
    <message>
        <source>Cover Source Inserter</source>
        <translation>Deckblätter kommen nicht aus der Zuschießeinheit. Der Drucker lässt dieses weg, bis Sie eine Papierquelle wählen.</translation>
    </message>
    <message>
        <source>Cover Source Automatic</source>
        <translation>Der Drucker wählt das Fach.</translation>
    </message>
    <message>
        <source>Cover Source Chosen</source>
        <translation>Der Drucker nimmt das Papier, das in dieser Papierquelle liegt.</translation>
    </message>
    <message>
        <source>Job Paper</source>
        <translation>„Wie im Auftrag“ bedeutet das Papier des Auftrags: %1.</translation>
    </message>
    <!-- Inserts -->
    <message>
        <source>Inserts Title</source>
        <translation>Einlegeblätter</translation>
    </message>
    <message>
        <source>Insert Position:</source>
        <translation>&amp;Einlegen:</translation>
    </message>
    <message>
        <source>Insert Pages:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>Insert Pages Hint</source>
        <translation>Die Blätter folgen auf jede dieser Seiten. Beispiele: 2,5 · 3-7 · 12- (ab Seite 12)</translation>
    </message>
    <message>
        <source>Insert Quantity:</source>
        <translation>&amp;Blätter:</translation>
    </message>
    <message>
        <source>Insert Paper...</source>
        <translation>&amp;Papier wählen</translation>
    </message>
    <message>
        <source>Insert Paper</source>
        <translation>Papier der Einlegeblätter</translation>
    </message>
    <message>
        <source>Insert Summary</source>
        <translation>Papier der Einlegeblätter, Zusammenfassung</translation>
    </message>
    <!-- Exception pages -->
    <message>
        <source>Exceptions Title</source>
        <translation>Ausnahmeseiten</translation>
    </message>
    <message>
        <source>Exception Pages:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>Exception Pages Hint</source>
        <translation>Beispiele: 2,5 · 3-7 · 12- (ab Seite 12)</translation>
    </message>
    <message>
        <source>Exception Tabs</source>
        <translation>Einstellungen dieser Seiten</translation>
    </message>
    <message>
        <source>Exception Paper and Sides</source>
        <translation>Papier &amp;und Seiten</translation>
    </message>
    <message>
        <source>Exception Image</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>Exception Paper...</source>
        <translation>&amp;Papier wählen</translation>
    </message>
    <message>
        <source>Exception Paper</source>
        <translation>Papier der Ausnahmeseiten</translation>
    </message>
    <message>
        <source>Exception Summary</source>
        <translation>Papier der Ausnahmeseiten, Zusammenfassung</translation>
    </message>
    <message>
        <source>Exception Tab Shift:</source>
        <translation>Bi&amp;ldverschiebung:</translation>
    </message>
    <message>
        <source>Exception Tab Shift...</source>
        <translation>&amp;Einrichten…</translation>
    </message>
    <message>
        <source>Exception Tab Shift</source>
        <translation>Bildverschiebung einrichten</translation>
    </message>
    <message>
        <source>Exception Tab Shift Tip</source>
        <translation>Wie weit das Druckbild auf die Register von Registerblättern rückt</translation>
    </message>
    <message>
        <source>Tab Shift Not Needed</source>
        <translation>Nur für Registerblätter</translation>
    </message>
    <message>
        <source>Tab Shift Words Inches</source>
        <translation>%1 in</translation>
    </message>
    <message>
        <source>Tab Shift Words Millimeters</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Exception Sides:</source>
        <translation>Sei&amp;tendruck:</translation>
    </message>
    <message>
        <source>Exception Lightness:</source>
        <translation>&amp;Heller/dunkler:</translation>
    </message>
    <message>
        <source>Job Setting Hint</source>
        <translation>„Wie im Auftrag“ bedeutet: %1.</translation>
    </message>
    <!-- Notices -->
    <message>
        <source>Page Number Limit Title</source>
        <translation>Die Seitenzahl ist zu hoch</translation>
    </message>
    <message>
        <source>Page Number Limit</source>
        <translation>Eine Seitenzahl hat höchstens %1 Stellen. Berichtigen Sie die Seiten und wählen Sie noch einmal OK.</translation>
    </message>
    <message>
        <source>Invalid Pages Title</source>
        <translation>Die Seitenangabe ist nicht verständlich</translation>
    </message>
    <message>
        <source>Invalid Page Ranges</source>
        <translation>Geben Sie Seitenzahlen und Bereiche mit einem Strich ein, getrennt durch Kommas. Beispiele: 2,5 oder 3-7. Der Bereich 12- beginnt auf Seite 12 und reicht bis zur letzten Seite.</translation>
    </message>
    <message>
        <source>Invalid Ranges Title</source>
        <translation>Ein Seitenbereich ist verkehrt herum</translation>
    </message>
    <message>
        <source>Invalid Range Order</source>
        <translation>Die erste Seite eines Bereichs kommt vor der letzten. Geben Sie 3-7 statt 7-3 ein.</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Title</source>
        <translation>Es gibt keine Seite 0</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Message</source>
        <translation>Seiten werden ab 1 gezählt. Beginnen Sie den Bereich mit Seite 1 oder einer späteren.</translation>
    </message>
    <message>
        <source>Too Many Inserts Title</source>
        <translation>Es sind zu viele Einlegeblätter</translation>
    </message>
    <message>
        <source>Too Many Inserts Message</source>
        <translation>Die Liste der Sonderseiten fasst höchstens %1 Einlegeblätter, und mit diesen Seiten wären es mehr. Wählen Sie weniger Seiten. Um mehrere Blätter an einer Stelle einzulegen, legen Sie einen Eintrag an und stellen Sie die Zahl seiner Blätter ein.</translation>
    </message>
    <message>
        <source>PageRangeConflictTitle</source>
        <translation>Seitenbereiche überschneiden sich</translation>
    </message>
    <message>
        <source>PageRangeConflictMessage</source>
        <translation>Eine Seite kann nur in einem Bereich stehen. Ändern Sie die Bereiche so, dass sie keine Seite gemeinsam haben.</translation>
    </message>
    <message>
        <source>Delete Special Pages Title</source>
        <translation>Sonderseiten löschen?</translation>
    </message>
    <message>
        <source>Delete Selected Special Pages</source>
        <translation>Die ausgewählten Deckblätter, Einlegeblätter und Ausnahmeseiten werden aus dem Auftrag genommen. „Rückgängig“ bringt sie zurück.</translation>
    </message>
    <message>
        <source>Delete All Special Pages</source>
        <translation>Alle Deckblätter, Einlegeblätter und Ausnahmeseiten werden aus dem Auftrag genommen. „Rückgängig“ bringt sie zurück.</translation>
    </message>
    <message>
        <source>No Command</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes Command</source>
        <translation>Ja</translation>
    </message>

    <!-- What print dialogs say of special pages -->
    <message>
        <source>Inserts in Words</source>
        <translation>Einlegeblätter:</translation>
    </message>
    <message>
        <source>Exception Pages in Words</source>
        <translation>Ausnahmeseiten:</translation>
    </message>
    <message>
        <source>More Pages in Words</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Insert in Preview</source>
        <translation>Einlegeblatt</translation>
    </message>
    <message>
        <source>Exception in Preview</source>
        <translation>Ausnahme %1</translation>
    </message>
    <message>
        <source>Insert in Words</source>
        <translation>nach Seite %1 (%2)</translation>
    </message>
    <message>
        <source>Insert before Page 1 in Words</source>
        <translation>vor Seite 1 (%1)</translation>
    </message>
</context>
</TS>

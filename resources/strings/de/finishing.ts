<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The finishing menu and its summary -->
    <message>
        <source>No Staple Value</source>
        <translation>Nicht heften</translation>
    </message>
    <message>
        <source>NoHolePunch</source>
        <translation>Nicht lochen</translation>
    </message>
    <message>
        <source>No Fold</source>
        <translation>Nicht falzen</translation>
    </message>
    <message>
        <source>Booklet Creation...</source>
        <translation>Broschüre erstellen…</translation>
    </message>
    <message>
        <source>Booklet Fold</source>
        <translation>Broschüre falzen</translation>
    </message>
    <message>
        <source>Booklet FoldStaple</source>
        <translation>Broschüre falzen und heften</translation>
    </message>
    <message>
        <source>Booklet Layout</source>
        <translation>Broschürenlayout</translation>
    </message>
    <message>
        <source>Covers Menu Option</source>
        <translation>Deckbl&amp;ätter…</translation>
    </message>
    <message>
        <source>Covers Tip</source>
        <translation>Blätter aus anderem Papier vor und nach dem Dokument</translation>
    </message>
    <message>
        <source>Separators Option</source>
        <translation>Trennblätter…</translation>
    </message>
    <message>
        <source>Separators Tip</source>
        <translation>Blätter aus Papier zwischen Folien</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Trennblätter</translation>
    </message>
    <!-- The menu of further finishing -->
    <message>
        <source>1 Staple...</source>
        <translation>1 Heftklammer…</translation>
    </message>
    <message>
        <source>2 Staples...</source>
        <translation>2 Heftklammern…</translation>
    </message>
    <message>
        <source>Hole Punch...</source>
        <translation>Lochen…</translation>
    </message>
    <message>
        <source>Fold...</source>
        <translation>Falzen…</translation>
    </message>
    <message>
        <source>Advanced Fold...</source>
        <translation>Erweitertes Falzen…</translation>
    </message>
    <message>
        <source>Z Fold...</source>
        <translation>Z-Falz…</translation>
    </message>
    <message>
        <source>Bind...</source>
        <translation>Bandbindung…</translation>
    </message>
    <message>
        <source>Offset...</source>
        <translation>Versatz…</translation>
    </message>
    <message>
        <source>Custom Finishing...</source>
        <translation>Besondere Endverarbeitung…</translation>
    </message>
    <!-- Staples -->
    <message>
        <source>1 Staple Title</source>
        <translation>1 Heftklammer</translation>
    </message>
    <message>
        <source>2 Staples Title</source>
        <translation>2 Heftklammern</translation>
    </message>
    <message>
        <source>Staples:</source>
        <translation>&amp;Heftklammern:</translation>
    </message>
    <message>
        <source>No Staple Hint</source>
        <translation>Die Blätter eines Satzes werden nicht geheftet.</translation>
    </message>
    <message>
        <source>1 Staple Hint</source>
        <translation>Eine Heftklammer in einer Ecke jedes Satzes.</translation>
    </message>
    <message>
        <source>2 Staples Hint</source>
        <translation>Zwei Heftklammern an einer Kante jedes Satzes.</translation>
    </message>
    <message>
        <source>Staple Limits</source>
        <translation>Folien, Etiketten und Umschläge können nicht geheftet werden. Heften hebt das Falzen auf.</translation>
    </message>
    <!-- Holes -->
    <message>
        <source>Hole Punch Title</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Holes:</source>
        <translation>&amp;Löcher:</translation>
    </message>
    <message>
        <source>NoHolePunch Hint</source>
        <translation>Es wird nicht gelocht.</translation>
    </message>
    <message>
        <source>HolePunch Hint</source>
        <translation>Lochung so, wie sie am Gerät eingestellt ist.</translation>
    </message>
    <message>
        <source>2 Hole Punch Hint</source>
        <translation>Zwei Löcher an einer Kante jedes Blattes.</translation>
    </message>
    <message>
        <source>3 Hole Punch Hint</source>
        <translation>Drei Löcher an einer Kante jedes Blattes.</translation>
    </message>
    <message>
        <source>4 Hole Punch Hint</source>
        <translation>Vier Löcher an einer Kante jedes Blattes.</translation>
    </message>
    <message>
        <source>Hole Punch Limits</source>
        <translation>Folien, Etiketten, Registerblätter und Umschläge können nicht gelocht werden. Lochen hebt das Falzen auf.</translation>
    </message>
    <!-- Folds -->
    <message>
        <source>Fold Title</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Advanced Fold Title</source>
        <translation>Erweitertes Falzen</translation>
    </message>
    <message>
        <source>Z Fold Title</source>
        <translation>Z-Falz</translation>
    </message>
    <message>
        <source>Fold:</source>
        <translation>&amp;Falz:</translation>
    </message>
    <message>
        <source>No Fold Hint</source>
        <translation>Die Blätter werden flach ausgegeben.</translation>
    </message>
    <message>
        <source>BiFoldNoStaple Hint</source>
        <translation>Einmal in der Mitte gefalzt, ohne Heftklammern. Nicht zusammen mit Heften oder Lochen möglich.</translation>
    </message>
    <message>
        <source>Booklet FoldStaple Hint</source>
        <translation>Einmal in der Mitte gefalzt und im Falz geheftet. Nicht zusammen mit anderem Heften oder mit Lochen möglich.</translation>
    </message>
    <message>
        <source>FoldCFold Hint</source>
        <translation>In drei Teile gefalzt, einer in den anderen eingeschlagen, wie ein Brief für einen Umschlag. Nicht zusammen mit Heften oder Lochen möglich.</translation>
    </message>
    <message>
        <source>FoldZFold Hint</source>
        <translation>In drei Teile gefalzt, in der Form eines Z, sodass es sich mit einem Zug öffnet. Nicht zusammen mit Heften möglich.</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet Hint</source>
        <translation>Eine Hälfte jedes Blattes wird auf sich selbst zurückgefalzt, sodass ein großes Blatt zwischen Blätter der halben Größe passt.</translation>
    </message>
    <message>
        <source>Fold Limits</source>
        <translation>Folien, Etiketten, Registerblätter, Umschläge und schweres Papier können nicht gefalzt werden.</translation>
    </message>
    <!-- Binding -->
    <message>
        <source>Bind Title</source>
        <translation>Bandbindung</translation>
    </message>
    <message>
        <source>Bind:</source>
        <translation>&amp;Binden:</translation>
    </message>
    <message>
        <source>No Binding</source>
        <translation>Nicht binden</translation>
    </message>
    <message>
        <source>Bind Left Edge</source>
        <translation>Linke Kante</translation>
    </message>
    <message>
        <source>Bind Right Edge</source>
        <translation>Rechte Kante</translation>
    </message>
    <message>
        <source>Bind Top Edge</source>
        <translation>Obere Kante</translation>
    </message>
    <message>
        <source>No Binding Hint</source>
        <translation>Die Blätter eines Satzes werden nicht gebunden.</translation>
    </message>
    <message>
        <source>Bind Left Edge Hint</source>
        <translation>Band an der linken Kante jedes Satzes, für Text, der von links nach rechts gelesen wird.</translation>
    </message>
    <message>
        <source>Bind Right Edge Hint</source>
        <translation>Band an der rechten Kante jedes Satzes, für Text, der von rechts nach links gelesen wird.</translation>
    </message>
    <message>
        <source>Bind Top Edge Hint</source>
        <translation>Band an der oberen Kante jedes Satzes, wie bei einem Notizblock.</translation>
    </message>
    <message>
        <source>Bind Limits</source>
        <translation>Alle Blätter eines Satzes müssen dasselbe Format haben.</translation>
    </message>
    <!-- What a choice does besides -->
    <message>
        <source>Finishing Replaced</source>
        <translation>Der Auftrag ist jetzt auf „%1“ eingestellt. OK ersetzt das.</translation>
    </message>
    <message>
        <source>Finishing Ends Booklet</source>
        <translation>OK schaltet das Broschürenlayout aus.</translation>
    </message>
    <!-- Offset -->
    <message>
        <source>Offset Title</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>&amp;Versatz:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>No Offset</source>
        <translation>Kein Versatz</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Zwischen Sätzen</translation>
    </message>
    <message>
        <source>Offset Subsets</source>
        <translation>Zwischen Teilsätzen</translation>
    </message>
    <message>
        <source>Offset Sets and Subsets</source>
        <translation>Zwischen Sätzen und Teilsätzen</translation>
    </message>
    <message>
        <source>Offset Subsets Switch</source>
        <translation>&amp;Jeden Satz in Teilsätze teilen</translation>
    </message>
    <message>
        <source>Pages per Subset:</source>
        <translation>&amp;Seiten je Teilsatz:</translation>
    </message>
    <message>
        <source>Pages per Subset</source>
        <translation>Seiten je Teilsatz</translation>
    </message>
    <message>
        <source>Offset Hint</source>
        <translation>Sätze sind die Exemplare des Dokuments, Teilsätze sind Teile eines Satzes. Was versetzt ist, liegt etwas seitlich von dem, was vorher kam. Bei 0 Seiten je Teilsatz entscheidet das Gerät.</translation>
    </message>
    <!-- Custom finishing -->
    <message>
        <source>Custom Finishing Title</source>
        <translation>Besondere Endverarbeitung</translation>
    </message>
    <message>
        <source>Finishing Label</source>
        <translation>&amp;Anweisung zur Endverarbeitung:</translation>
    </message>
    <message>
        <source>Custom Finishing</source>
        <translation>Anweisung zur Endverarbeitung</translation>
    </message>
    <message>
        <source>Remove Custom Finishing</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Custom Finishing Hint</source>
        <translation>Für die Person, die das Gerät bedient, in Ihren eigenen Worten. Die Anweisung wird mit dem Auftrag gesendet und kann bis zu 255 Zeichen haben; für OK ist mindestens eines nötig.</translation>
    </message>
    <!-- Separators -->
    <message>
        <source>Separators Title</source>
        <translation>Trennblätter für Folien</translation>
    </message>
    <message>
        <source>Separator Hint</source>
        <translation>Ein Trennblatt ist ein Blatt Papier, das zwischen zwei Folien liegt, damit sie nicht aneinander haften.</translation>
    </message>
    <message>
        <source>No Separators on This Device</source>
        <translation>Dieses Gerät kann keine Trennblätter zwischen Folien legen.</translation>
    </message>
    <message>
        <source>Separators:</source>
        <translation>&amp;Trennblätter:</translation>
    </message>
    <message>
        <source>Separator Source:</source>
        <translation>&amp;Papierquelle:</translation>
    </message>
    <message>
        <source>Separator Source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Separator Color:</source>
        <translation>&amp;Farbe im Bild:</translation>
    </message>
    <message>
        <source>Separator Color</source>
        <translation>Farbe im Bild</translation>
    </message>
    <message>
        <source>Separator Color Hint</source>
        <translation>Ändert nur das Bild. Die Trennblätter haben die Farbe des Papiers in der Papierquelle.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Offset with Subsets in Words</source>
        <translation>%1, %2 Seiten je Teilsatz</translation>
    </message>
    <message>
        <source>Bind Absent in Words</source>
        <translation>%1, aber dieses Gerät hat keine Bandbindeeinheit</translation>
    </message>
    <message>
        <source>Slip Sheets in Words</source>
        <translation>Zwischenlageblätter:</translation>
    </message>
    <message>
        <source>Finished Set Spoken</source>
        <translation>Was aus den Blättern wird</translation>
    </message>
    <message>
        <source>1 Staple in Corner</source>
        <translation>1 Heftklammer in der linken oberen Ecke</translation>
    </message>
    <message>
        <source>2 Staples at Edge</source>
        <translation>2 Heftklammern an der linken Kante</translation>
    </message>
    <message>
        <source>Multiple Staples at Edge</source>
        <translation>Mehrere Heftklammern an der linken Kante</translation>
    </message>
    <message>
        <source>2 Holes at Edge</source>
        <translation>2 Löcher an der linken Kante</translation>
    </message>
    <message>
        <source>3 Holes at Edge</source>
        <translation>3 Löcher an der linken Kante</translation>
    </message>
    <message>
        <source>4 Holes at Edge</source>
        <translation>4 Löcher an der linken Kante</translation>
    </message>
    <message>
        <source>Holes Set at Device</source>
        <translation>Löcher wie am Gerät eingestellt</translation>
    </message>
    <message>
        <source>Tape at Left Edge</source>
        <translation>Band an der linken Kante</translation>
    </message>
    <message>
        <source>Tape at Right Edge</source>
        <translation>Band an der rechten Kante</translation>
    </message>
    <message>
        <source>Tape at Top Edge</source>
        <translation>Band an der oberen Kante</translation>
    </message>
    <message>
        <source>Sets Lie Offset</source>
        <translation>Sätze versetzt</translation>
    </message>
    <message>
        <source>Subsets Lie Offset</source>
        <translation>Teilsätze versetzt</translation>
    </message>
    <message>
        <source>Sets and Subsets Lie Offset</source>
        <translation>Sätze und Teilsätze versetzt</translation>
    </message>
</context>
</TS>

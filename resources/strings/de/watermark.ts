<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- What a new user is given -->
    <message>
        <source>DraftWatermark</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>ConfidentialWatermark</source>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>CopyWatermark</source>
        <translation>Kopie</translation>
    </message>

    <!-- The panel -->
    <message>
        <source>BookletWatermarkPanelTitle</source>
        <translation>Broschüre/Wasserzeichen</translation>
    </message>
    <message>
        <source>Booklet Layout:</source>
        <translation>&amp;Broschürenlayout:</translation>
    </message>
    <message>
        <source>Booklet Layout Hint</source>
        <translation>Zwei Seiten auf jeder Blattseite, in der Reihenfolge, in der die gefalzten Blätter eine Broschüre ergeben.</translation>
    </message>
    <message>
        <source>Booklet Layout Missing</source>
        <translation>Dieses Gerät druckt nur einseitig und kann deshalb keine Broschüren anlegen.</translation>
    </message>
    <message>
        <source>Page Borders:</source>
        <translation>S&amp;eitenrahmen:</translation>
    </message>
    <message>
        <source>Page Borders</source>
        <translation>Seitenrahmen</translation>
    </message>
    <message>
        <source>Page Borders Tip</source>
        <translation>Eine dünne Linie um jede Seite der Broschüre</translation>
    </message>
    <message>
        <source>Booklet Options... Title</source>
        <translation>B&amp;roschürenoptionen…</translation>
    </message>
    <message>
        <source>Booklet Options Tip</source>
        <translation>Falzen und Heften, Format der Blätter, Bundsteg und Bundzuwachs</translation>
    </message>
    <message>
        <source>Watermark Title</source>
        <translation>&amp;Wasserzeichen:</translation>
    </message>
    <message>
        <source>Watermark Preview</source>
        <translation>So sieht das Wasserzeichen auf dem Papier aus</translation>
    </message>
    <message>
        <source>Watermark Behind Hint</source>
        <translation>Hinter dem Seiteninhalt, auf allen Seiten.</translation>
    </message>
    <message>
        <source>Watermark Blend Hint</source>
        <translation>Mit dem Seiteninhalt gemischt, auf allen Seiten.</translation>
    </message>
    <message>
        <source>Watermark Front Hint</source>
        <translation>Vor dem Seiteninhalt, auf allen Seiten.</translation>
    </message>
    <message>
        <source>Watermark Behind First Hint</source>
        <translation>Hinter dem Seiteninhalt, nur auf Seite 1.</translation>
    </message>
    <message>
        <source>Watermark Blend First Hint</source>
        <translation>Mit dem Seiteninhalt gemischt, nur auf Seite 1.</translation>
    </message>
    <message>
        <source>Watermark Front First Hint</source>
        <translation>Vor dem Seiteninhalt, nur auf Seite 1.</translation>
    </message>
    <message>
        <source>Watermark Editor</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Delete Watermark Header</source>
        <translation>Dieses Wasserzeichen löschen?</translation>
    </message>
    <message>
        <source>Delete Watermark Message</source>
        <translation>„%1“ wird aus Ihrer Liste der Wasserzeichen entfernt. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Watermark Not Saved Header</source>
        <translation>Das Wasserzeichen wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>Watermark Not Saved Message</source>
        <translation>Ihre Liste der Wasserzeichen ist unverändert. %1</translation>
    </message>

    <!-- The booklet dialog -->
    <message>
        <source>Booklet Options Title</source>
        <translation>Broschürenoptionen</translation>
    </message>
    <message>
        <source>Booklet Creation</source>
        <translation>Broschüre erstellen</translation>
    </message>
    <message>
        <source>Booklet Finishing:</source>
        <translation>&amp;Endverarbeitung der Broschüre:</translation>
    </message>
    <message>
        <source>Booklet Finishing</source>
        <translation>Endverarbeitung der Broschüre</translation>
    </message>
    <message>
        <source>Booklet Fold and Staple</source>
        <translation>Broschüre falzen und heften</translation>
    </message>
    <message>
        <source>Draw Outlines</source>
        <translation>Seiten&amp;rahmen zeichnen</translation>
    </message>
    <message>
        <source>Fit to New Size Label</source>
        <translation>&amp;An neues Format anpassen:</translation>
    </message>
    <message>
        <source>New Size Tip</source>
        <translation>Druckt auf Blätter dieses Formats statt auf die des Auftrags; die Seiten werden passend verkleinert oder vergrößert.</translation>
    </message>
    <message>
        <source>Gutter Label</source>
        <translation>B&amp;undsteg:</translation>
    </message>
    <message>
        <source>Creep Label</source>
        <translation>Bu&amp;ndzuwachs:</translation>
    </message>
    <message>
        <source>Gutter Range Label</source>
        <translation>%1 bis %2 Punkt</translation>
    </message>
    <message>
        <source>Creep Range Label</source>
        <translation>%1 bis %2 Punkt je Blatt</translation>
    </message>
    <message>
        <source>Gutter Hint</source>
        <translation>Freier Raum am Falz, zwischen den beiden Seiten einer Blattseite.</translation>
    </message>
    <message>
        <source>Creep Hint</source>
        <translation>Wie weit die Seiten jedes Blattes zum Falz rücken, damit sie in der Mitte bleiben, wo innere Blätter überstehen.</translation>
    </message>
    <message>
        <source>Booklet Picture</source>
        <translation>Was aus den Blättern wird</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Booklet in Words</source>
        <translation>Bundsteg %1 pt, Bundzuwachs %2</translation>
    </message>
    <message>
        <source>Page Borders in Words</source>
        <translation>Seitenrahmen</translation>
    </message>
    <message>
        <source>New Size in Words</source>
        <translation>angepasst an %1</translation>
    </message>
    <message>
        <source>Watermark in Words</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Watermark Behind in Words</source>
        <translation>%1, hinter den Seiten</translation>
    </message>
    <message>
        <source>Watermark Blend in Words</source>
        <translation>%1, mit den Seiten gemischt</translation>
    </message>
    <message>
        <source>Watermark Front in Words</source>
        <translation>%1, vor den Seiten</translation>
    </message>
    <message>
        <source>Watermark Behind First in Words</source>
        <translation>%1, hinter Seite 1</translation>
    </message>
    <message>
        <source>Watermark Blend First in Words</source>
        <translation>%1, mit Seite 1 gemischt</translation>
    </message>
    <message>
        <source>Watermark Front First in Words</source>
        <translation>%1, vor Seite 1</translation>
    </message>
    <message>
        <source>Watermark Absent in Words</source>
        <translation>„%1“ gehört nicht zu Ihren Wasserzeichen; es wird keines gedruckt</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Summary and menus of the paper -->
    <message>
        <source>StockName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>StockColor</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>:</source>
        <translation>: </translation>
    </message>
    <message>
        <source>StockTypePrecutTab</source>
        <translation>Vorgestanzte Registerblätter</translation>
    </message>
    <message>
        <source>StockTypeOrdered</source>
        <translation>Geordnetes Papier</translation>
    </message>
    <message>
        <source>StockTypeCustom</source>
        <translation>Eigene Papierart</translation>
    </message>
    <message>
        <source>StockColorCustom</source>
        <translation>Eigene Farbe</translation>
    </message>
    <message>
        <source>OtherSize</source>
        <translation>Anderes Format</translation>
    </message>
    <message>
        <source>OtherColor</source>
        <translation>Andere Farbe</translation>
    </message>
    <message>
        <source>OtherType</source>
        <translation>Andere Papierart</translation>
    </message>
    <message>
        <source>Default Stock</source>
        <translation>Standardpapier</translation>
    </message>
    <message>
        <source>Advanced Stock Selection...</source>
        <translation>Erweiterte Papierauswahl…</translation>
    </message>
    <message>
        <source>StockCustomSizeInches</source>
        <translation>Benutzerdefiniert (%1 × %2 in)</translation>
    </message>
    <message>
        <source>StockCustomSizeMillimeters</source>
        <translation>Benutzerdefiniert (%1 × %2 mm)</translation>
    </message>
    <message>
        <source>StockSizeUnknown</source>
        <translation>Ein anderes Format</translation>
    </message>
    <!-- What the paper is beyond size, color and type -->
    <message>
        <source>StockWeightText</source>
        <translation>%1 g/m²</translation>
    </message>
    <message>
        <source>StockCoatingText</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>StockNotPunched</source>
        <translation>Nicht gelocht</translation>
    </message>
    <message>
        <source>StockPrePunched</source>
        <translation>Vorgelocht</translation>
    </message>
    <message>
        <source>StockNotCoated</source>
        <translation>Nicht gestrichen</translation>
    </message>
    <message>
        <source>StockOneSideCoated</source>
        <translation>Einseitig gestrichen</translation>
    </message>
    <message>
        <source>StockBothCoated</source>
        <translation>Beidseitig gestrichen</translation>
    </message>
    <message>
        <source>StockCoatingUsual</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>StockCoatingGloss</source>
        <translation>Glänzend</translation>
    </message>
    <message>
        <source>StockCoatingSatin</source>
        <translation>Seidenmatt</translation>
    </message>
    <message>
        <source>StockCoatingMatte</source>
        <translation>Matt</translation>
    </message>
    <message>
        <source>StockFinishSmooth</source>
        <translation>Glatt</translation>
    </message>
    <message>
        <source>StockFinishVellum</source>
        <translation>Velin</translation>
    </message>
    <message>
        <source>StockFinishLaid</source>
        <translation>Gerippt</translation>
    </message>
    <message>
        <source>StockFinishLinen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>StockFinishFelt</source>
        <translation>Filz</translation>
    </message>
    <message>
        <source>StockGrainLong</source>
        <translation>Laufrichtung entlang der langen Kante</translation>
    </message>
    <message>
        <source>StockGrainShort</source>
        <translation>Laufrichtung entlang der kurzen Kante</translation>
    </message>
    <!-- Custom paper size -->
    <message>
        <source>Custom Size Title</source>
        <translation>Benutzerdefiniertes Papierformat</translation>
    </message>
    <message>
        <source>Custom Size Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Custom Size Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Custom Size Length:</source>
        <translation>&amp;Länge:</translation>
    </message>
    <message>
        <source>Custom Size Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Custom Size Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Custom Size Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Custom Size Inches</source>
        <translation>&amp;Zoll</translation>
    </message>
    <message>
        <source>Custom Size Millimeters</source>
        <translation>&amp;Millimeter</translation>
    </message>
    <message>
        <source>Custom Size Limits Inches</source>
        <translation>%1 bis %2 in</translation>
    </message>
    <message>
        <source>Custom Size Limits Millimeters</source>
        <translation>%1 bis %2 mm</translation>
    </message>
    <message>
        <source>Custom Width Refused Header</source>
        <translation>Diese Breite ist am Gerät nicht möglich</translation>
    </message>
    <message>
        <source>Custom Length Refused Header</source>
        <translation>Diese Länge ist am Gerät nicht möglich</translation>
    </message>
    <message>
        <source>Custom Size Refused Message</source>
        <translation>Möglich sind %1. Ändern Sie die Zahl oder brechen Sie ab, um das bisherige Format des Papiers zu behalten.</translation>
    </message>
    <message>
        <source>Custom Size Picture</source>
        <translation>Ein Blatt mit seiner Breite und Länge</translation>
    </message>
    <!-- Tab stock -->
    <message>
        <source>Tab Stock Setup</source>
        <translation>Registerblätter einrichten</translation>
    </message>
    <message>
        <source>Tab Margin Shift:</source>
        <translation>&amp;Bildverschiebung:</translation>
    </message>
    <message>
        <source>Tab Margin Shift</source>
        <translation>Bildverschiebung</translation>
    </message>
    <message>
        <source>Tab Shift Distance:</source>
        <translation>&amp;Abstand:</translation>
    </message>
    <message>
        <source>Tab Shift Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Tab Shift Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Tab Shift Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Tab Shift Inches</source>
        <translation>&amp;Zoll</translation>
    </message>
    <message>
        <source>Tab Shift Millimeters</source>
        <translation>&amp;Millimeter</translation>
    </message>
    <message>
        <source>Tab Shift Hint</source>
        <translation>Verschiebt das Druckbild zum Register hin. Für einen eigenen Abstand wählen Sie „Benutzerdefiniert“.</translation>
    </message>
    <message>
        <source>Tab Shift Picture</source>
        <translation>Ein Registerblatt, dessen Bild auf das Register verschoben ist</translation>
    </message>
    <message>
        <source>Pre-Cut Tab Title</source>
        <translation>Vorgestanzte Registerblätter</translation>
    </message>
    <message>
        <source>Tabs in Set:</source>
        <translation>&amp;Register je Satz:</translation>
    </message>
    <message>
        <source>Tabs in Set</source>
        <translation>Register je Satz</translation>
    </message>
    <message>
        <source>Tabs in Set Hint</source>
        <translation>So viele Blätter liegen zwischen der ersten und der letzten Registerposition, bevor die Positionen von vorn beginnen.</translation>
    </message>
    <message>
        <source>Tabs in Set Picture</source>
        <translation>Vorgestanzte Registerblätter</translation>
    </message>
    <!-- Type of the paper -->
    <message>
        <source>Stock Type Title</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Stock Type:</source>
        <translation>&amp;Art:</translation>
    </message>
    <message>
        <source>Stock Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Stock Type Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Stock Type Name</source>
        <translation>Name der Papierart</translation>
    </message>
    <message>
        <source>Stock Type Name Hint</source>
        <translation>„Geordnetes Papier“ und „Eigene Papierart“ brauchen einen Namen: den, unter dem das Gerät das Papier kennt.</translation>
    </message>
    <message>
        <source>Stock Type Tabs:</source>
        <translation>Register:</translation>
    </message>
    <message>
        <source>Stock Type Tabs...</source>
        <translation>&amp;Register…</translation>
    </message>
    <message>
        <source>Tabs Not Set</source>
        <translation>Anzahl nicht festgelegt</translation>
    </message>
    <message>
        <source>Tabs Set</source>
        <translation>%1 je Satz</translation>
    </message>
    <message>
        <source>Tabs Not Needed</source>
        <translation>Diese Papierart hat keine Register.</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Header</source>
        <translation>Geben Sie der Papierart einen Namen</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Message</source>
        <translation>„Geordnetes Papier“ und „Eigene Papierart“ brauchen einen Namen. Geben Sie den ein, unter dem das Gerät das Papier kennt, oder wählen Sie eine andere Papierart.</translation>
    </message>
    <!-- Description of the paper -->
    <message>
        <source>Stock Description Title</source>
        <translation>Papierbeschreibung</translation>
    </message>
    <message>
        <source>Stock Description:</source>
        <translation>B&amp;eschreibung:</translation>
    </message>
    <message>
        <source>Stock Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Stock Weight:</source>
        <translation>&amp;Gewicht:</translation>
    </message>
    <message>
        <source>Stock Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Stock Weight Suffix</source>
        <translation> g/m²</translation>
    </message>
    <message>
        <source>Stock Weight Range</source>
        <translation>%1 bis %2 g/m² bei diesem Gerät</translation>
    </message>
    <message>
        <source>Stock Sides Coated:</source>
        <translation>&amp;Strich:</translation>
    </message>
    <message>
        <source>Stock Sides Coated</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>Stock Coating Type:</source>
        <translation>&amp;Art des Strichs:</translation>
    </message>
    <message>
        <source>Stock Coating Type</source>
        <translation>Art des Strichs</translation>
    </message>
    <message>
        <source>Stock Finish:</source>
        <translation>&amp;Oberfläche:</translation>
    </message>
    <message>
        <source>Stock Finish</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Stock Finish Tip</source>
        <translation>Wie sich die Oberfläche anfühlt; strukturierte Papiere nehmen Toner weniger gleichmäßig an.</translation>
    </message>
    <message>
        <source>Stock Grain:</source>
        <translation>La&amp;ufrichtung:</translation>
    </message>
    <message>
        <source>Stock Grain</source>
        <translation>Laufrichtung</translation>
    </message>
    <message>
        <source>Stock Grain Tip</source>
        <translation>Die Richtung der Fasern: Längs zu ihr falzt Papier sauber, quer dazu bricht es.</translation>
    </message>
    <message>
        <source>Stock Punched:</source>
        <translation>&amp;Lochung:</translation>
    </message>
    <message>
        <source>Stock Punched</source>
        <translation>Lochung</translation>
    </message>
    <message>
        <source>Stock Comment:</source>
        <translation>&amp;Bemerkung:</translation>
    </message>
    <message>
        <source>Stock Comment</source>
        <translation>Bemerkung</translation>
    </message>
    <!-- All of the paper -->
    <message>
        <source>Advanced Stock Title</source>
        <translation>Erweiterte Papierauswahl</translation>
    </message>
    <message>
        <source>Stock Summary</source>
        <translation>Papier, wie es eingestellt ist</translation>
    </message>
    <message>
        <source>Stock Type...</source>
        <translation>Ar&amp;t…</translation>
    </message>
    <message>
        <source>Stock Description...</source>
        <translation>&amp;Beschreibung…</translation>
    </message>
    <message>
        <source>Stock Library:</source>
        <translation>Bib&amp;liothek:</translation>
    </message>
    <message>
        <source>Stock Library</source>
        <translation>Bibliothek benannter Papiere</translation>
    </message>
    <message>
        <source>Stock Library Choose</source>
        <translation>Benanntes Papier wählen</translation>
    </message>
    <message>
        <source>Stock Library Empty</source>
        <translation>Noch keine Papiere gespeichert</translation>
    </message>
    <message>
        <source>Stock Library Hint</source>
        <translation>Ein Papier aus der Bibliothek ersetzt die Einstellungen in diesem Fenster.</translation>
    </message>
    <message>
        <source>Save in Library...</source>
        <translation>&amp;In Bibliothek speichern…</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>&amp;Aus Bibliothek entfernen</translation>
    </message>
    <message>
        <source>Stock Size:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>Stock Size</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Advanced Stock Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Advanced Stock Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Stock Color Name:</source>
        <translation>Fa&amp;rbname:</translation>
    </message>
    <message>
        <source>Stock Color Name</source>
        <translation>Name der Farbe</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Header</source>
        <translation>Geben Sie der eigenen Farbe einen Namen</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Message</source>
        <translation>Eine eigene Farbe braucht einen Namen. Geben Sie einen ein oder wählen Sie eine andere Farbe.</translation>
    </message>
    <!-- The library of named papers -->
    <message>
        <source>Save in Library Title</source>
        <translation>In Bibliothek speichern</translation>
    </message>
    <message>
        <source>Library Stock Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Library Stock Name</source>
        <translation>Name des Papiers</translation>
    </message>
    <message>
        <source>Library Stock Name Hint</source>
        <translation>Das Papier wird unter diesem Namen in jedem Auftrag angeboten.</translation>
    </message>
    <message>
        <source>Library Name Missing Header</source>
        <translation>Geben Sie dem Papier einen Namen</translation>
    </message>
    <message>
        <source>Library Name Missing Message</source>
        <translation>Geben Sie den Namen ein, unter dem die Bibliothek dieses Papier aufbewahren soll.</translation>
    </message>
    <message>
        <source>Library Name Too Long Header</source>
        <translation>Kürzen Sie den Namen</translation>
    </message>
    <message>
        <source>Library Name Too Long Message</source>
        <translation>Ein Name in der Bibliothek hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>Library Full Header</source>
        <translation>Die Bibliothek ist voll</translation>
    </message>
    <message>
        <source>Library Full Message</source>
        <translation>Die Bibliothek fasst höchstens %1 Papiere. Entfernen Sie eines, das nicht mehr gebraucht wird, oder speichern Sie unter einem Namen, den es schon gibt.</translation>
    </message>
    <message>
        <source>Library Not Found Header</source>
        <translation>Das Papier ist nicht mehr in der Bibliothek</translation>
    </message>
    <message>
        <source>Library Not Found Message</source>
        <translation>„%1“ wurde inzwischen entfernt.</translation>
    </message>
    <message>
        <source>Library Not Written Header</source>
        <translation>Die Bibliothek konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Library Not Written Message</source>
        <translation>Die Datei %1 kann nicht geschrieben werden. Sorgen Sie dafür, dass auf ihrem Datenträger Platz ist und dass Sie in ihren Ordner schreiben dürfen, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Library Replace Header</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message>
        <source>Library Replace Message</source>
        <translation>In der Bibliothek gibt es bereits ein Papier mit diesem Namen.</translation>
    </message>
    <message>
        <source>Library Replace Button</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Library Remove Header</source>
        <translation>„%1“ entfernen?</translation>
    </message>
    <message>
        <source>Library Remove Message</source>
        <translation>Das Papier wird aus der Bibliothek entfernt. Aufträge, die es verwenden, ändern sich nicht.</translation>
    </message>
    <message>
        <source>Library Remove Button</source>
        <translation>Entfernen</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Summary and menus of the paper -->
    <message>
        <source>StockName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>StockColor</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>:</source>
        <translation>: </translation>
    </message>
    <message>
        <source>StockTypePrecutTab</source>
        <translation>Precut tabs</translation>
    </message>
    <message>
        <source>StockTypeOrdered</source>
        <translation>Ordered paper</translation>
    </message>
    <message>
        <source>StockTypeCustom</source>
        <translation>Custom type</translation>
    </message>
    <message>
        <source>StockColorCustom</source>
        <translation>Custom color</translation>
    </message>
    <message>
        <source>OtherSize</source>
        <translation>Other size</translation>
    </message>
    <message>
        <source>OtherColor</source>
        <translation>Other color</translation>
    </message>
    <message>
        <source>OtherType</source>
        <translation>Other type</translation>
    </message>
    <message>
        <source>Default Stock</source>
        <translation>Default paper</translation>
    </message>
    <message>
        <source>Advanced Stock Selection...</source>
        <translation>Advanced Paper Selection…</translation>
    </message>
    <message>
        <source>StockCustomSizeInches</source>
        <translation>Custom (%1 × %2 in)</translation>
    </message>
    <message>
        <source>StockCustomSizeMillimeters</source>
        <translation>Custom (%1 × %2 mm)</translation>
    </message>
    <message>
        <source>StockSizeUnknown</source>
        <translation>Another size</translation>
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
        <translation>Not punched</translation>
    </message>
    <message>
        <source>StockPrePunched</source>
        <translation>Prepunched</translation>
    </message>
    <message>
        <source>StockNotCoated</source>
        <translation>Not coated</translation>
    </message>
    <message>
        <source>StockOneSideCoated</source>
        <translation>Coated on one side</translation>
    </message>
    <message>
        <source>StockBothCoated</source>
        <translation>Coated on both sides</translation>
    </message>
    <message>
        <source>StockCoatingUsual</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>StockCoatingGloss</source>
        <translation>Glossy</translation>
    </message>
    <message>
        <source>StockCoatingSatin</source>
        <translation>Satin</translation>
    </message>
    <message>
        <source>StockCoatingMatte</source>
        <translation>Matte</translation>
    </message>
    <message>
        <source>StockFinishSmooth</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>StockFinishVellum</source>
        <translation>Vellum</translation>
    </message>
    <message>
        <source>StockFinishLaid</source>
        <translation>Laid</translation>
    </message>
    <message>
        <source>StockFinishLinen</source>
        <translation>Linen</translation>
    </message>
    <message>
        <source>StockFinishFelt</source>
        <translation>Felt</translation>
    </message>
    <message>
        <source>StockGrainLong</source>
        <translation>Grain along the long edge</translation>
    </message>
    <message>
        <source>StockGrainShort</source>
        <translation>Grain along the short edge</translation>
    </message>
    <!-- Custom paper size -->
    <message>
        <source>Custom Size Title</source>
        <translation>Custom Paper Size</translation>
    </message>
    <message>
        <source>Custom Size Width:</source>
        <translation>&amp;Width:</translation>
    </message>
    <message>
        <source>Custom Size Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Custom Size Length:</source>
        <translation>&amp;Length:</translation>
    </message>
    <message>
        <source>Custom Size Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Custom Size Unit:</source>
        <translation>&amp;Units:</translation>
    </message>
    <message>
        <source>Custom Size Unit</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Custom Size Inches</source>
        <translation>&amp;Inches</translation>
    </message>
    <message>
        <source>Custom Size Millimeters</source>
        <translation>&amp;Millimeters</translation>
    </message>
    <message>
        <source>Custom Size Limits Inches</source>
        <translation>%1 to %2 in</translation>
    </message>
    <message>
        <source>Custom Size Limits Millimeters</source>
        <translation>%1 to %2 mm</translation>
    </message>
    <message>
        <source>Custom Width Refused Header</source>
        <translation>The device does not take this width</translation>
    </message>
    <message>
        <source>Custom Length Refused Header</source>
        <translation>The device does not take this length</translation>
    </message>
    <message>
        <source>Custom Size Refused Message</source>
        <translation>It takes %1. Change the number, or cancel to keep the size that the paper has.</translation>
    </message>
    <message>
        <source>Custom Size Picture</source>
        <translation>A sheet with its width and length</translation>
    </message>
    <!-- Tab stock -->
    <message>
        <source>Tab Stock Setup</source>
        <translation>Tab Stock Setup</translation>
    </message>
    <message>
        <source>Tab Margin Shift:</source>
        <translation>&amp;Tab margin shift:</translation>
    </message>
    <message>
        <source>Tab Margin Shift</source>
        <translation>Tab margin shift</translation>
    </message>
    <message>
        <source>Tab Shift Distance:</source>
        <translation>&amp;Distance:</translation>
    </message>
    <message>
        <source>Tab Shift Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Tab Shift Unit:</source>
        <translation>&amp;Units:</translation>
    </message>
    <message>
        <source>Tab Shift Unit</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Tab Shift Inches</source>
        <translation>&amp;Inches</translation>
    </message>
    <message>
        <source>Tab Shift Millimeters</source>
        <translation>&amp;Millimeters</translation>
    </message>
    <message>
        <source>Tab Shift Hint</source>
        <translation>Moves the printed image toward the tab. To set a distance of your own, choose “Custom”.</translation>
    </message>
    <message>
        <source>Tab Shift Picture</source>
        <translation>A tab sheet with its image moved onto the tab</translation>
    </message>
    <message>
        <source>Pre-Cut Tab Title</source>
        <translation>Precut Tabs</translation>
    </message>
    <message>
        <source>Tabs in Set:</source>
        <translation>&amp;Tabs in each set:</translation>
    </message>
    <message>
        <source>Tabs in Set</source>
        <translation>Tabs in each set</translation>
    </message>
    <message>
        <source>Tabs in Set Hint</source>
        <translation>How many sheets there are from the first tab position to the last, before the positions begin again.</translation>
    </message>
    <message>
        <source>Tabs in Set Picture</source>
        <translation>Precut tab sheets</translation>
    </message>
    <!-- Type of the paper -->
    <message>
        <source>Stock Type Title</source>
        <translation>Paper Type</translation>
    </message>
    <message>
        <source>Stock Type:</source>
        <translation>&amp;Type:</translation>
    </message>
    <message>
        <source>Stock Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Stock Type Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Stock Type Name</source>
        <translation>Name of the type</translation>
    </message>
    <message>
        <source>Stock Type Name Hint</source>
        <translation>Ordered paper and “Custom type” need a name: the one that the device knows the paper by.</translation>
    </message>
    <message>
        <source>Stock Type Tabs:</source>
        <translation>Tabs:</translation>
    </message>
    <message>
        <source>Stock Type Tabs...</source>
        <translation>Ta&amp;bs…</translation>
    </message>
    <message>
        <source>Tabs Not Set</source>
        <translation>Number not set</translation>
    </message>
    <message>
        <source>Tabs Set</source>
        <translation>%1 in each set</translation>
    </message>
    <message>
        <source>Tabs Not Needed</source>
        <translation>This type has no tabs.</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Header</source>
        <translation>Name the paper type</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Message</source>
        <translation>Ordered paper and “Custom type” need a name. Enter the one that the device knows the paper by, or choose another type.</translation>
    </message>
    <!-- Description of the paper -->
    <message>
        <source>Stock Description Title</source>
        <translation>Paper Description</translation>
    </message>
    <message>
        <source>Stock Description:</source>
        <translation>&amp;Description:</translation>
    </message>
    <message>
        <source>Stock Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Stock Weight:</source>
        <translation>&amp;Weight:</translation>
    </message>
    <message>
        <source>Stock Weight</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>Stock Weight Suffix</source>
        <translation> g/m²</translation>
    </message>
    <message>
        <source>Stock Weight Range</source>
        <translation>%1 to %2 g/m² on this device</translation>
    </message>
    <message>
        <source>Stock Sides Coated:</source>
        <translation>&amp;Coating:</translation>
    </message>
    <message>
        <source>Stock Sides Coated</source>
        <translation>Coating</translation>
    </message>
    <message>
        <source>Stock Coating Type:</source>
        <translation>Coating t&amp;ype:</translation>
    </message>
    <message>
        <source>Stock Coating Type</source>
        <translation>Coating type</translation>
    </message>
    <message>
        <source>Stock Finish:</source>
        <translation>Surface &amp;finish:</translation>
    </message>
    <message>
        <source>Stock Finish</source>
        <translation>Surface finish</translation>
    </message>
    <message>
        <source>Stock Finish Tip</source>
        <translation>How the surface feels; textured papers take toner less evenly.</translation>
    </message>
    <message>
        <source>Stock Grain:</source>
        <translation>&amp;Grain:</translation>
    </message>
    <message>
        <source>Stock Grain</source>
        <translation>Grain</translation>
    </message>
    <message>
        <source>Stock Grain Tip</source>
        <translation>The direction of the fibers: paper folds cleanly along it and cracks across it.</translation>
    </message>
    <message>
        <source>Stock Punched:</source>
        <translation>&amp;Punched holes:</translation>
    </message>
    <message>
        <source>Stock Punched</source>
        <translation>Punched holes</translation>
    </message>
    <message>
        <source>Stock Comment:</source>
        <translation>C&amp;omment:</translation>
    </message>
    <message>
        <source>Stock Comment</source>
        <translation>Comment</translation>
    </message>
    <!-- All of the paper -->
    <message>
        <source>Advanced Stock Title</source>
        <translation>Advanced Paper Selection</translation>
    </message>
    <message>
        <source>Stock Summary</source>
        <translation>Paper summary</translation>
    </message>
    <message>
        <source>Stock Type...</source>
        <translation>&amp;Type…</translation>
    </message>
    <message>
        <source>Stock Description...</source>
        <translation>&amp;Description…</translation>
    </message>
    <message>
        <source>Stock Library:</source>
        <translation>&amp;Library:</translation>
    </message>
    <message>
        <source>Stock Library</source>
        <translation>Library of named papers</translation>
    </message>
    <message>
        <source>Stock Library Choose</source>
        <translation>Choose a named paper</translation>
    </message>
    <message>
        <source>Stock Library Empty</source>
        <translation>No papers saved yet</translation>
    </message>
    <message>
        <source>Stock Library Hint</source>
        <translation>A paper chosen from the library replaces the settings in this window.</translation>
    </message>
    <message>
        <source>Save in Library...</source>
        <translation>&amp;Save in Library…</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>&amp;Remove from Library</translation>
    </message>
    <message>
        <source>Stock Size:</source>
        <translation>Si&amp;ze:</translation>
    </message>
    <message>
        <source>Stock Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Advanced Stock Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>Advanced Stock Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Stock Color Name:</source>
        <translation>Color &amp;name:</translation>
    </message>
    <message>
        <source>Stock Color Name</source>
        <translation>Name of the color</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Header</source>
        <translation>Name the custom color</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Message</source>
        <translation>A custom color needs a name. Enter one, or choose another color.</translation>
    </message>
    <!-- The library of named papers -->
    <message>
        <source>Save in Library Title</source>
        <translation>Save in Library</translation>
    </message>
    <message>
        <source>Library Stock Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Library Stock Name</source>
        <translation>Name of the paper</translation>
    </message>
    <message>
        <source>Library Stock Name Hint</source>
        <translation>The paper is offered under this name in every job.</translation>
    </message>
    <message>
        <source>Library Name Missing Header</source>
        <translation>Name the paper</translation>
    </message>
    <message>
        <source>Library Name Missing Message</source>
        <translation>Enter the name under which the library should keep this paper.</translation>
    </message>
    <message>
        <source>Library Name Too Long Header</source>
        <translation>Shorten the name</translation>
    </message>
    <message>
        <source>Library Name Too Long Message</source>
        <translation>A name in the library has at most %1 characters.</translation>
    </message>
    <message>
        <source>Library Full Header</source>
        <translation>The library is full</translation>
    </message>
    <message>
        <source>Library Full Message</source>
        <translation>The library keeps at most %1 papers. Remove one that is no longer needed, or save under a name that is already there.</translation>
    </message>
    <message>
        <source>Library Not Found Header</source>
        <translation>The paper is no longer in the library</translation>
    </message>
    <message>
        <source>Library Not Found Message</source>
        <translation>“%1” has been removed in the meantime.</translation>
    </message>
    <message>
        <source>Library Not Written Header</source>
        <translation>The library could not be saved</translation>
    </message>
    <message>
        <source>Library Not Written Message</source>
        <translation>The file %1 cannot be written. Make sure that there is space left on its disk and that you may write into its folder, then try again.</translation>
    </message>
    <message>
        <source>Library Replace Header</source>
        <translation>Replace “%1”?</translation>
    </message>
    <message>
        <source>Library Replace Message</source>
        <translation>The library already has a paper of this name.</translation>
    </message>
    <message>
        <source>Library Replace Button</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Library Remove Header</source>
        <translation>Remove “%1”?</translation>
    </message>
    <message>
        <source>Library Remove Message</source>
        <translation>The paper is removed from the library. Jobs that use it are not changed.</translation>
    </message>
    <message>
        <source>Library Remove Button</source>
        <translation>Remove</translation>
    </message>
</context>
</TS>

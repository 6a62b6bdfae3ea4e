<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The finishing menu and its summary -->
    <message>
        <source>No Staple Value</source>
        <translation>No staple</translation>
    </message>
    <message>
        <source>NoHolePunch</source>
        <translation>No hole punch</translation>
    </message>
    <message>
        <source>No Fold</source>
        <translation>No fold</translation>
    </message>
    <message>
        <source>Booklet Creation...</source>
        <translation>Booklet Creation…</translation>
    </message>
    <message>
        <source>Booklet Fold</source>
        <translation>Booklet fold</translation>
    </message>
    <message>
        <source>Booklet FoldStaple</source>
        <translation>Booklet fold and staple</translation>
    </message>
    <message>
        <source>Booklet Layout</source>
        <translation>Booklet layout</translation>
    </message>
    <message>
        <source>Covers Menu Option</source>
        <translation>Co&amp;vers…</translation>
    </message>
    <message>
        <source>Covers Tip</source>
        <translation>Sheets of other paper before and after the document</translation>
    </message>
    <message>
        <source>Separators Option</source>
        <translation>Separators…</translation>
    </message>
    <message>
        <source>Separators Tip</source>
        <translation>Sheets of paper between transparencies</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>Separators</translation>
    </message>
    <!-- The menu of further finishing -->
    <message>
        <source>1 Staple...</source>
        <translation>1 Staple…</translation>
    </message>
    <message>
        <source>2 Staples...</source>
        <translation>2 Staples…</translation>
    </message>
    <message>
        <source>Hole Punch...</source>
        <translation>Hole Punch…</translation>
    </message>
    <message>
        <source>Fold...</source>
        <translation>Fold…</translation>
    </message>
    <message>
        <source>Advanced Fold...</source>
        <translation>Advanced Fold…</translation>
    </message>
    <message>
        <source>Z Fold...</source>
        <translation>Z-Fold…</translation>
    </message>
    <message>
        <source>Bind...</source>
        <translation>Tape Binding…</translation>
    </message>
    <message>
        <source>Offset...</source>
        <translation>Offset…</translation>
    </message>
    <message>
        <source>Custom Finishing...</source>
        <translation>Custom Finishing…</translation>
    </message>
    <!-- Staples -->
    <message>
        <source>1 Staple Title</source>
        <translation>1 Staple</translation>
    </message>
    <message>
        <source>2 Staples Title</source>
        <translation>2 Staples</translation>
    </message>
    <message>
        <source>Staples:</source>
        <translation>&amp;Staples:</translation>
    </message>
    <message>
        <source>No Staple Hint</source>
        <translation>The sheets of a set are not stapled.</translation>
    </message>
    <message>
        <source>1 Staple Hint</source>
        <translation>One staple in a corner of each set.</translation>
    </message>
    <message>
        <source>2 Staples Hint</source>
        <translation>Two staples along one edge of each set.</translation>
    </message>
    <message>
        <source>Staple Limits</source>
        <translation>Transparencies, labels and envelopes cannot be stapled. A staple cancels folding.</translation>
    </message>
    <!-- Holes -->
    <message>
        <source>Hole Punch Title</source>
        <translation>Hole Punch</translation>
    </message>
    <message>
        <source>Holes:</source>
        <translation>&amp;Holes:</translation>
    </message>
    <message>
        <source>NoHolePunch Hint</source>
        <translation>No holes are punched.</translation>
    </message>
    <message>
        <source>HolePunch Hint</source>
        <translation>Holes in the pattern that is set at the device.</translation>
    </message>
    <message>
        <source>2 Hole Punch Hint</source>
        <translation>Two holes along one edge of each sheet.</translation>
    </message>
    <message>
        <source>3 Hole Punch Hint</source>
        <translation>Three holes along one edge of each sheet.</translation>
    </message>
    <message>
        <source>4 Hole Punch Hint</source>
        <translation>Four holes along one edge of each sheet.</translation>
    </message>
    <message>
        <source>Hole Punch Limits</source>
        <translation>Transparencies, labels, tab stock and envelopes cannot be punched. Punching cancels folding.</translation>
    </message>
    <!-- Folds -->
    <message>
        <source>Fold Title</source>
        <translation>Fold</translation>
    </message>
    <message>
        <source>Advanced Fold Title</source>
        <translation>Advanced Fold</translation>
    </message>
    <message>
        <source>Z Fold Title</source>
        <translation>Z-Fold</translation>
    </message>
    <message>
        <source>Fold:</source>
        <translation>&amp;Fold:</translation>
    </message>
    <message>
        <source>No Fold Hint</source>
        <translation>The sheets come out flat.</translation>
    </message>
    <message>
        <source>BiFoldNoStaple Hint</source>
        <translation>Folded once in the middle, without staples. It cannot be combined with staples or holes.</translation>
    </message>
    <message>
        <source>Booklet FoldStaple Hint</source>
        <translation>Folded once in the middle and stapled through the fold. It cannot be combined with other staples or holes.</translation>
    </message>
    <message>
        <source>FoldCFold Hint</source>
        <translation>Folded into three panels, one tucked inside the other, like a letter for an envelope. It cannot be combined with staples or holes.</translation>
    </message>
    <message>
        <source>FoldZFold Hint</source>
        <translation>Folded into three panels in the shape of a Z, so that it opens in one pull. It cannot be combined with staples.</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet Hint</source>
        <translation>One half of each sheet is folded back on itself, so that a large sheet fits among sheets of half its size.</translation>
    </message>
    <message>
        <source>Fold Limits</source>
        <translation>Transparencies, labels, tab stock, envelopes and heavy paper cannot be folded.</translation>
    </message>
    <!-- Binding -->
    <message>
        <source>Bind Title</source>
        <translation>Tape Binding</translation>
    </message>
    <message>
        <source>Bind:</source>
        <translation>&amp;Bind:</translation>
    </message>
    <message>
        <source>No Binding</source>
        <translation>No binding</translation>
    </message>
    <message>
        <source>Bind Left Edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Bind Right Edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Bind Top Edge</source>
        <translation>Top edge</translation>
    </message>
    <message>
        <source>No Binding Hint</source>
        <translation>The sheets of a set are not bound.</translation>
    </message>
    <message>
        <source>Bind Left Edge Hint</source>
        <translation>Tape along the left edge of each set, for text that is read from left to right.</translation>
    </message>
    <message>
        <source>Bind Right Edge Hint</source>
        <translation>Tape along the right edge of each set, for text that is read from right to left.</translation>
    </message>
    <message>
        <source>Bind Top Edge Hint</source>
        <translation>Tape along the top edge of each set, as on a notepad.</translation>
    </message>
    <message>
        <source>Bind Limits</source>
        <translation>All sheets of a set must have the same size.</translation>
    </message>
    <!-- What a choice does besides -->
    <message>
        <source>Finishing Replaced</source>
        <translation>The job is now set to “%1”. OK replaces that.</translation>
    </message>
    <message>
        <source>Finishing Ends Booklet</source>
        <translation>OK turns off booklet layout.</translation>
    </message>
    <!-- Offset -->
    <message>
        <source>Offset Title</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>&amp;Offset:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>No Offset</source>
        <translation>No offset</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>Between sets</translation>
    </message>
    <message>
        <source>Offset Subsets</source>
        <translation>Between subsets</translation>
    </message>
    <message>
        <source>Offset Sets and Subsets</source>
        <translation>Between sets and subsets</translation>
    </message>
    <message>
        <source>Offset Subsets Switch</source>
        <translation>&amp;Divide each set into subsets</translation>
    </message>
    <message>
        <source>Pages per Subset:</source>
        <translation>&amp;Pages per subset:</translation>
    </message>
    <message>
        <source>Pages per Subset</source>
        <translation>Pages per subset</translation>
    </message>
    <message>
        <source>Offset Hint</source>
        <translation>Sets are the copies of the document, and subsets are parts of a set. What is offset lies a little to one side of what came before. With 0 pages per subset, the device decides.</translation>
    </message>
    <!-- Custom finishing -->
    <message>
        <source>Custom Finishing Title</source>
        <translation>Custom Finishing</translation>
    </message>
    <message>
        <source>Finishing Label</source>
        <translation>&amp;Finishing instruction:</translation>
    </message>
    <message>
        <source>Custom Finishing</source>
        <translation>Finishing instruction</translation>
    </message>
    <message>
        <source>Remove Custom Finishing</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>Custom Finishing Hint</source>
        <translation>For the operator of the device, in your own words. It goes with the job and can have up to 255 characters; OK needs at least one.</translation>
    </message>
    <!-- Separators -->
    <message>
        <source>Separators Title</source>
        <translation>Transparency Separators</translation>
    </message>
    <message>
        <source>Separator Hint</source>
        <translation>A separator is a sheet of paper that lies between two transparencies, so that they do not stick together.</translation>
    </message>
    <message>
        <source>No Separators on This Device</source>
        <translation>This device cannot put separators between transparencies.</translation>
    </message>
    <message>
        <source>Separators:</source>
        <translation>&amp;Separators:</translation>
    </message>
    <message>
        <source>Separator Source:</source>
        <translation>&amp;Paper source:</translation>
    </message>
    <message>
        <source>Separator Source</source>
        <translation>Paper source</translation>
    </message>
    <message>
        <source>Separator Color:</source>
        <translation>Color in p&amp;icture:</translation>
    </message>
    <message>
        <source>Separator Color</source>
        <translation>Color in picture</translation>
    </message>
    <message>
        <source>Separator Color Hint</source>
        <translation>Changes the picture only. The separators have the color of the paper in the source.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Offset with Subsets in Words</source>
        <translation>%1, %2 pages per subset</translation>
    </message>
    <message>
        <source>Bind Absent in Words</source>
        <translation>%1, but this device has no tape binder</translation>
    </message>
    <message>
        <source>Slip Sheets in Words</source>
        <translation>Slip sheets:</translation>
    </message>
    <message>
        <source>Finished Set Spoken</source>
        <translation>How the sheets come out</translation>
    </message>
    <message>
        <source>1 Staple in Corner</source>
        <translation>1 staple in the upper left corner</translation>
    </message>
    <message>
        <source>2 Staples at Edge</source>
        <translation>2 staples along the left edge</translation>
    </message>
    <message>
        <source>Multiple Staples at Edge</source>
        <translation>Several staples along the left edge</translation>
    </message>
    <message>
        <source>2 Holes at Edge</source>
        <translation>2 holes along the left edge</translation>
    </message>
    <message>
        <source>3 Holes at Edge</source>
        <translation>3 holes along the left edge</translation>
    </message>
    <message>
        <source>4 Holes at Edge</source>
        <translation>4 holes along the left edge</translation>
    </message>
    <message>
        <source>Holes Set at Device</source>
        <translation>Holes as set at the device</translation>
    </message>
    <message>
        <source>Tape at Left Edge</source>
        <translation>Tape along the left edge</translation>
    </message>
    <message>
        <source>Tape at Right Edge</source>
        <translation>Tape along the right edge</translation>
    </message>
    <message>
        <source>Tape at Top Edge</source>
        <translation>Tape along the top edge</translation>
    </message>
    <message>
        <source>Sets Lie Offset</source>
        <translation>Sets offset</translation>
    </message>
    <message>
        <source>Subsets Lie Offset</source>
        <translation>Subsets offset</translation>
    </message>
    <message>
        <source>Sets and Subsets Lie Offset</source>
        <translation>Sets and subsets offset</translation>
    </message>
</context>
</TS>

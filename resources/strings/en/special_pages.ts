<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Covers -->
    <message>
        <source>Covers Title</source>
        <translation>Covers</translation>
    </message>
    <message>
        <source>Cover Options:</source>
        <translation>Co&amp;vers:</translation>
    </message>
    <message>
        <source>Front and Back the Same</source>
        <translation>Front and back the same</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Front cover</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Back cover</translation>
    </message>
    <message>
        <source>Front Cover Paper...</source>
        <translation>Choose &amp;paper</translation>
    </message>
    <message>
        <source>Front Cover Paper</source>
        <translation>Front cover paper</translation>
    </message>
    <message>
        <source>Front Cover Summary</source>
        <translation>Front cover paper, summary</translation>
    </message>
    <message>
        <source>Front Cover Source:</source>
        <translation>Paper &amp;source:</translation>
    </message>
    <message>
        <source>Front Cover Source</source>
        <translation>Front cover paper source</translation>
    </message>
    <message>
        <source>Front Cover Sides:</source>
        <translation>Cover &amp;is:</translation>
    </message>
    <message>
        <source>Front Cover Sides</source>
        <translation>Front cover is</translation>
    </message>
    <message>
        <source>Back Cover Paper...</source>
        <translation>Choose p&amp;aper</translation>
    </message>
    <message>
        <source>Back Cover Paper</source>
        <translation>Back cover paper</translation>
    </message>
    <message>
        <source>Back Cover Summary</source>
        <translation>Back cover paper, summary</translation>
    </message>
    <message>
        <source>Back Cover Source:</source>
        <translation>Paper so&amp;urce:</translation>
    </message>
    <message>
        <source>Back Cover Source</source>
        <translation>Back cover paper source</translation>
    </message>
    <message>
        <source>Back Cover Sides:</source>
        <translation>Cov&amp;er is:</translation>
    </message>
    <message>
        <source>Back Cover Sides</source>
        <translation>Back cover is</translation>
    </message>
    <message>
        <source>Cover Source Not Set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Cover Source Missing</source>
        <translation>The printer leaves this cover out until you choose a paper source.</translation>
    </message>
    <message>
        <source>Cover Source Automatic</source>
        <translation>The printer chooses the tray.</translation>
    </message>
    <message>
        <source>Cover Source Chosen</source>
        <translation>The printer takes the paper that is in this source.</translation>
    </message>
    <message>
        <source>Job Paper</source>
        <translation>“Use job setting” means the paper of the job: %1.</translation>
    </message>

    <!-- What print dialogs say of special pages (Info.plist) -->
    <message>
        <source>Inserts in Words</source>
        <translation>Inserts:</translation>
    </message>
    <message>
        <source>Exception Pages in Words</source>
        <translation>Exception pages:</translation>
    </message>
    <message>
        <source>Insert in Preview</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Exception in Preview</source>
        <translation>exception %1</translation>
    </message>
</context>
</TS>

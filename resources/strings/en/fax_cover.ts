<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <!-- The dialog -->
    <message>
        <source>Cover Sheet Title</source>
        <translation>Cover Sheet</translation>
    </message>
    <message>
        <source>Cover Sender:</source>
        <translation>&amp;Sender:</translation>
    </message>
    <message>
        <source>Cover Sender Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cover Sender Name</source>
        <translation>Sender’s name</translation>
    </message>
    <message>
        <source>Cover Sender Organization:</source>
        <translation>Or&amp;ganization:</translation>
    </message>
    <message>
        <source>Cover Sender Organization</source>
        <translation>Sender’s organization</translation>
    </message>
    <message>
        <source>Cover Sender Email:</source>
        <translation>&amp;E-mail:</translation>
    </message>
    <message>
        <source>Cover Sender Email</source>
        <translation>Sender’s e-mail address</translation>
    </message>
    <message>
        <source>Cover Sender Phone:</source>
        <translation>&amp;Phone:</translation>
    </message>
    <message>
        <source>Cover Sender Phone</source>
        <translation>Sender’s phone number</translation>
    </message>
    <message>
        <source>Cover Sender Fax:</source>
        <translation>&amp;Fax:</translation>
    </message>
    <message>
        <source>Cover Sender Fax</source>
        <translation>Sender’s fax number</translation>
    </message>
    <message>
        <source>Cover My Card</source>
        <translation>Use &amp;My Card</translation>
    </message>
    <message>
        <source>Cover My Card Reading</source>
        <translation>Looking for your card in the address book…</translation>
    </message>
    <message>
        <source>Cover My Card Missing</source>
        <translation>No card in your address book is marked as your own. Mark one there, and it can be used here.</translation>
    </message>
    <message>
        <source>Cover My Card Unavailable</source>
        <translation>Your card cannot be used: %1.</translation>
    </message>
    <message>
        <source>Cover My Card No Thread</source>
        <translation>the system cannot start another task; close other programs</translation>
    </message>
    <message>
        <source>Cover Recipients:</source>
        <translation>&amp;Recipients:</translation>
    </message>
    <message>
        <source>Cover Custom Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Cover Custom Text</source>
        <translation>Text in place of the recipients</translation>
    </message>
    <message>
        <source>Cover Image:</source>
        <translation>&amp;Image:</translation>
    </message>
    <message>
        <source>Cover Image</source>
        <translation>Image over the cover sheet</translation>
    </message>
    <message>
        <source>Cover Image Not Here</source>
        <translation>%1 (not on this computer)</translation>
    </message>
    <message>
        <source>Cover Paper Hint</source>
        <translation>Paper size: %1</translation>
    </message>
    <message>
        <source>Cover Window Preview</source>
        <translation>How the cover sheet looks</translation>
    </message>
    <message>
        <source>Delete Cover Image Header</source>
        <translation>Delete this image?</translation>
    </message>
    <message>
        <source>Delete Cover Image Message</source>
        <translation>“%1” is removed from your list of cover images. Its file stays where it is. This cannot be undone.</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Header</source>
        <translation>The image was not saved</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Message</source>
        <translation>Your list of cover images is as it was. %1</translation>
    </message>

    <!-- The preview -->
    <message>
        <source>Cover Preview Reading</source>
        <translation>Reading the picture…</translation>
    </message>
    <message>
        <source>Cover Preview Cut</source>
        <translation>There is more text than the cover sheet has room for: its end is left out.</translation>
    </message>
    <message>
        <source>Cover Preview No Font</source>
        <translation>Some characters are not in any font on this computer, so they are left out here: %1.</translation>
    </message>
    <message>
        <source>Cover Preview Image Lost</source>
        <translation>There is no image “%1” on this computer, so none is shown here.</translation>
    </message>
    <message>
        <source>Cover Preview Image Unreadable</source>
        <translation>The image cannot be shown. %1</translation>
    </message>
    <message>
        <source>Cover Preview No Thread</source>
        <translation>The preview cannot be drawn: the system cannot start another task. Close other programs.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Image Editor</source>
        <translation>Cover Sheet Image</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Duplicate Recipient Header</source>
        <translation>This recipient is already in the list</translation>
    </message>
    <message>
        <source>Duplicate Recipient Message</source>
        <translation>%1 (%2) already gets this fax. Do you want to add this recipient once more?</translation>
    </message>
    <message>
        <source>Remove One Recipient Header</source>
        <translation>Remove this recipient?</translation>
    </message>
    <message>
        <source>Remove One Recipient Message</source>
        <translation>%1 (%2) will not get this fax.</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Header</source>
        <translation>Remove these recipients?</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Message</source>
        <translation>%1 recipients will not get this fax.</translation>
    </message>
    <message>
        <source>From Label</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>To Label</source>
        <translation>To:</translation>
    </message>
    <message>
        <source>Notes Label</source>
        <translation>Notes:</translation>
    </message>
    <message>
        <source>Phone Label</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Fax Label</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>LAN Fax Title</source>
        <translation>Fax Setup</translation>
    </message>
    <message>
        <source>Fax Tabs</source>
        <translation>Parts of the fax settings</translation>
    </message>
    <message>
        <source>Fax Recipients Tab</source>
        <translation>&amp;Recipients</translation>
    </message>
    <message>
        <source>Fax Options Tab</source>
        <translation>&amp;Sending</translation>
    </message>
    <message>
        <source>Cover Sheet Tab</source>
        <translation>Co&amp;ver Sheet</translation>
    </message>
    <message>
        <source>Fax Recipients</source>
        <translation>Fax recipients</translation>
    </message>
    <message>
        <source>Recipient Name Column</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Recipient Number Column</source>
        <translation>Fax number</translation>
    </message>
    <message>
        <source>Recipient Organization Column</source>
        <translation>Organization</translation>
    </message>
    <message>
        <source>Add Recipient Command</source>
        <translation>&amp;Add…</translation>
    </message>
    <message>
        <source>Address Book Command</source>
        <translation>Address &amp;Book…</translation>
    </message>
    <message>
        <source>Edit Recipient Command</source>
        <translation>&amp;Edit…</translation>
    </message>
    <message>
        <source>Remove Recipients Command</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Save Group Command</source>
        <translation>Save as &amp;Group…</translation>
    </message>
    <message>
        <source>Remove All Recipients Command</source>
        <translation>Remove A&amp;ll</translation>
    </message>
    <message>
        <source>No Recipients Yet</source>
        <translation>Nobody gets this fax yet. Add at least one recipient.</translation>
    </message>
    <message>
        <source>One Recipient</source>
        <translation>1 recipient</translation>
    </message>
    <message>
        <source>Number of Recipients</source>
        <translation>%1 recipients</translation>
    </message>
    <message>
        <source>No Address Book Hint</source>
        <translation>The list cannot be saved as a group: %1.</translation>
    </message>
    <message>
        <source>Confirmation Sheet:</source>
        <translation>&amp;Confirmation sheet:</translation>
    </message>
    <message>
        <source>Confirmation Sheet Tip</source>
        <translation>The device prints a sheet that says whether the fax arrived.</translation>
    </message>
    <message>
        <source>Send Speed:</source>
        <translation>Sen&amp;d speed:</translation>
    </message>
    <message>
        <source>Send Speed Tip</source>
        <translation>Automatic is right for nearly all; a fixed speed helps where a line is bad.</translation>
    </message>
    <message>
        <source>Fax Resolution:</source>
        <translation>&amp;Fax resolution:</translation>
    </message>
    <message>
        <source>Fax Resolution Tip</source>
        <translation>Finer pages are easier to read and take longer to send.</translation>
    </message>
    <message>
        <source>Send Time:</source>
        <translation>Send time:</translation>
    </message>
    <message>
        <source>Send Now</source>
        <translation>No&amp;w</translation>
    </message>
    <message>
        <source>Send At:</source>
        <translation>A&amp;t:</translation>
    </message>
    <message>
        <source>Send Time Field</source>
        <translation>Time at which the fax is sent</translation>
    </message>
    <message>
        <source>Sent Today</source>
        <translation>The fax is sent today at %1.</translation>
    </message>
    <message>
        <source>Sent Tomorrow</source>
        <translation>The fax is sent tomorrow at %1.</translation>
    </message>
    <message>
        <source>Sent Later</source>
        <translation>The fax is sent on %1 at %2.</translation>
    </message>
    <message>
        <source>Fax Dialing Options:</source>
        <translation>Dialing:</translation>
    </message>
    <message>
        <source>Dialing Prefix</source>
        <translation>Dial a prefi&amp;x first:</translation>
    </message>
    <message>
        <source>Dialing Prefix Field</source>
        <translation>Dialing prefix</translation>
    </message>
    <message>
        <source>Dialing Prefix Hint</source>
        <translation>Up to %1 characters that devices dial: digits, * # = : ! , / S $ &lt; &gt; A B C D. A comma waits.</translation>
    </message>
    <message>
        <source>Cover Sheet Options:</source>
        <translation>Cover s&amp;heet:</translation>
    </message>
    <message>
        <source>Cover Sheet Setup Command</source>
        <translation>Set &amp;Up…</translation>
    </message>
    <message>
        <source>Cover Sheet Notes:</source>
        <translation>&amp;Notes on the cover sheet:</translation>
    </message>
    <message>
        <source>Cover Sheet Preview</source>
        <translation>Preview of the cover sheet</translation>
    </message>
    <message>
        <source>No Cover Sheet Hint</source>
        <translation>The fax begins with the document.</translation>
    </message>
    <message>
        <source>Fax Preferences Command</source>
        <translation>&amp;Preferences…</translation>
    </message>
    <message>
        <source>Max Characters Title</source>
        <translation>Fax Numbers That Are Too Long</translation>
    </message>
    <message>
        <source>Max Characters Message</source>
        <translation>Devices dial at most %1 characters, the prefix included. These numbers have more: shorten them, or remove the recipients.</translation>
    </message>
    <message>
        <source>Too Long Recipients</source>
        <translation>Recipients whose numbers are too long</translation>
    </message>
    <message>
        <source>Remove All Too Long Command</source>
        <translation>Remove A&amp;ll</translation>
    </message>
    <message>
        <source>Nothing Too Long</source>
        <translation>All numbers can be dialed now.</translation>
    </message>
    <message>
        <source>Save Group Title</source>
        <translation>Save Recipients as a Group</translation>
    </message>
    <message>
        <source>Group Name:</source>
        <translation>&amp;Name of the group:</translation>
    </message>
    <message>
        <source>Saving Group</source>
        <translation>Saving in the address book…</translation>
    </message>
    <message>
        <source>Group Not Saved Header</source>
        <translation>The group was not saved</translation>
    </message>
    <message>
        <source>Group Not Saved Message</source>
        <translation>The address book did not take all of it. Try again, or check whether the address book can be written to.</translation>
    </message>
    <message>
        <source>Required Field Header</source>
        <translation>The group needs a name</translation>
    </message>
    <message>
        <source>Group Name Required Message</source>
        <translation>Type the name under which the address book is to show these recipients.</translation>
    </message>
    <message>
        <source>Fax Preferences Dialog Title</source>
        <translation>Fax Preferences</translation>
    </message>
    <message>
        <source>User Preferences</source>
        <translation>Ask before</translation>
    </message>
    <message>
        <source>Prompt Duplicate Recipient</source>
        <translation>&amp;adding a recipient who is already in the list</translation>
    </message>
    <message>
        <source>Prompt Remove Recipient</source>
        <translation>&amp;removing recipients</translation>
    </message>
    <message>
        <source>Nameless in Words</source>
        <translation>(no name and no number)</translation>
    </message>
    <message>
        <source>Undialed in Words</source>
        <translation>%1 (no number to dial)</translation>
    </message>
    <message>
        <source>Too Long in Words</source>
        <translation>%1 (too long to dial)</translation>
    </message>
    <message>
        <source>And More Recipients</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>No Recipients in Words</source>
        <translation>nobody yet; add recipients in the fax settings</translation>
    </message>
    <message>
        <source>Dialing Prefix in Words</source>
        <translation>Dialing prefix</translation>
    </message>
    <message>
        <source>Cover Sheet in Short</source>
        <translation>with a cover sheet</translation>
    </message>
    <message>
        <source>Cover Sheet in Words</source>
        <translation>Fax cover sheet</translation>
    </message>
    <message>
        <source>Cover Image in Words</source>
        <translation>Cover sheet image</translation>
    </message>
    <message>
        <source>Cover Image Absent in Words</source>
        <translation>“%1” is not in your list of cover images</translation>
    </message>
</context>
</TS>

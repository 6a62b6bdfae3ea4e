<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Add Recipient Title</source>
        <translation>Add Recipient</translation>
    </message>
    <message>
        <source>Edit Recipient Title</source>
        <translation>Edit Recipient</translation>
    </message>
    <message>
        <source>Recipient First Name:</source>
        <translation>&amp;First name:</translation>
    </message>
    <message>
        <source>Recipient Last Name:</source>
        <translation>&amp;Last name:</translation>
    </message>
    <message>
        <source>Recipient Fax Number:</source>
        <translation>Fax &amp;number:</translation>
    </message>
    <message>
        <source>Recipient Organization:</source>
        <translation>&amp;Organization:</translation>
    </message>
    <message>
        <source>Recipient Phone:</source>
        <translation>&amp;Phone:</translation>
    </message>
    <message>
        <source>Recipient Email:</source>
        <translation>&amp;E-mail:</translation>
    </message>
    <message>
        <source>Recipient Mailbox:</source>
        <translation>&amp;Mailbox:</translation>
    </message>
    <message>
        <source>Recipient Mailbox Hint</source>
        <translation>A mailbox on the receiving device. If empty, the fax goes to its tray.</translation>
    </message>
    <message>
        <source>Fax Number Missing Hint</source>
        <translation>The fax cannot be sent without a number.</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Hint</source>
        <translation>None of these characters can be dialed.</translation>
    </message>
    <message>
        <source>Fax Number Dialed Hint</source>
        <translation>Will be dialed: %1</translation>
    </message>
    <message>
        <source>Fax Number Too Long Hint</source>
        <translation>%1 characters of this would be dialed; devices dial at most %2.</translation>
    </message>
    <message>
        <source>Fax Number Label Hint</source>
        <translation>Kind of number: %1</translation>
    </message>
    <message>
        <source>Fax Label Work</source>
        <translation>Work</translation>
    </message>
    <message>
        <source>Fax Label Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Fax Label Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Fax Number Refused Header</source>
        <translation>The fax number is missing</translation>
    </message>
    <message>
        <source>Fax Number Missing Message</source>
        <translation>Type the number that the fax is sent to.</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Message</source>
        <translation>No character of “%1” can be dialed. Type digits; * # = : ! , / S $ &lt; &gt; A B C D are dialed, too.</translation>
    </message>
    <message>
        <source>Address Book Title</source>
        <translation>Add from Address Book</translation>
    </message>
    <message>
        <source>People Source:</source>
        <translation>&amp;Look in:</translation>
    </message>
    <message>
        <source>People Source Address Book</source>
        <translation>Address book</translation>
    </message>
    <message>
        <source>People Source Recent</source>
        <translation>Recently used</translation>
    </message>
    <message>
        <source>People Source Cards</source>
        <translation>vCard files</translation>
    </message>
    <message>
        <source>Choose Cards Command</source>
        <translation>&amp;vCard Files…</translation>
    </message>
    <message>
        <source>Clear Recent Command</source>
        <translation>Clea&amp;r</translation>
    </message>
    <message>
        <source>People Search:</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>People Search Hint</source>
        <translation>Name, organization, e-mail or number</translation>
    </message>
    <message>
        <source>People List</source>
        <translation>People and groups found</translation>
    </message>
    <message>
        <source>People Name Column</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>People Organization Column</source>
        <translation>Organization</translation>
    </message>
    <message>
        <source>People Number Column</source>
        <translation>Fax number</translation>
    </message>
    <message>
        <source>People State Column</source>
        <translation>This fax</translation>
    </message>
    <message>
        <source>People In List</source>
        <translation>Added</translation>
    </message>
    <message>
        <source>People Number With Label</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>People Group</source>
        <translation>Group, nobody with a fax number</translation>
    </message>
    <message>
        <source>People Group of One</source>
        <translation>Group, 1 person</translation>
    </message>
    <message>
        <source>People Group of Several</source>
        <translation>Group, %1 people</translation>
    </message>
    <message>
        <source>Reading Address Book</source>
        <translation>Reading the address book…</translation>
    </message>
    <message>
        <source>Reading Cards</source>
        <translation>Reading the files…</translation>
    </message>
    <message>
        <source>Person Without Name</source>
        <translation>(no name)</translation>
    </message>
    <message>
        <source>Books Unread</source>
        <translation>These address books could not be read: %1.</translation>
    </message>
    <message>
        <source>Address Book Unread</source>
        <translation>The address book cannot be read: %1.</translation>
    </message>
    <message>
        <source>Address Book Unread Advice</source>
        <translation>Recently used recipients and vCard files can be added all the same.</translation>
    </message>
    <message>
        <source>Address Book Empty</source>
        <translation>The address book is empty.</translation>
    </message>
    <message>
        <source>Recent Empty</source>
        <translation>Nobody has been sent a fax yet.</translation>
    </message>
    <message>
        <source>Cards Empty</source>
        <translation>Drop vCard files here, or choose them above.</translation>
    </message>
    <message>
        <source>Nobody Has Fax Number</source>
        <translation>Nobody here has a fax number.</translation>
    </message>
    <message>
        <source>Nobody Found</source>
        <translation>Nobody was found.</translation>
    </message>
    <message>
        <source>One Without Fax Number</source>
        <translation>1 person without a fax number is not shown.</translation>
    </message>
    <message>
        <source>People Without Fax Number</source>
        <translation>%1 people without a fax number are not shown.</translation>
    </message>
    <message>
        <source>Nobody Added</source>
        <translation>Nobody was added.</translation>
    </message>
    <message>
        <source>One Person Added</source>
        <translation>1 recipient was added.</translation>
    </message>
    <message>
        <source>People Added</source>
        <translation>%1 recipients were added.</translation>
    </message>
    <message>
        <source>One Already There</source>
        <translation>1 was left out because it is already in the list.</translation>
    </message>
    <message>
        <source>People Already There</source>
        <translation>%1 were left out because they are already in the list.</translation>
    </message>
    <message>
        <source>One Not Added Again</source>
        <translation>1 was not added again.</translation>
    </message>
    <message>
        <source>Not Added Again</source>
        <translation>%1 were not added again.</translation>
    </message>
    <message>
        <source>Members Without Number</source>
        <translation>No fax number: %1</translation>
    </message>
    <message>
        <source>Names and Others</source>
        <translation>%1 and %2 others</translation>
    </message>
    <message>
        <source>Add People Command</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>Close Picker Command</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Clear Recent Header</source>
        <translation>Clear the recently used recipients?</translation>
    </message>
    <message>
        <source>Clear Recent Message</source>
        <translation>This cannot be undone. The list of this fax stays as it is.</translation>
    </message>
    <message>
        <source>Clear Recent Failed</source>
        <translation>The recently used recipients could not be cleared</translation>
    </message>
    <message>
        <source>Clear Recent Failed Message</source>
        <translation>Check whether the folder of your preferences can be written to.</translation>
    </message>
    <message>
        <source>Clear Recent</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Cards Chooser</source>
        <translation>vCard Files</translation>
    </message>
    <message>
        <source>Cards Kinds</source>
        <translation>vCard files</translation>
    </message>
    <message>
        <source>Cards All Files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Cards Problems Header</source>
        <translation>Not all cards were read</translation>
    </message>
    <message>
        <source>Cards Damaged One</source>
        <translation>%1: 1 card is damaged and was left out.</translation>
    </message>
    <message>
        <source>Cards Damaged Several</source>
        <translation>%1: %2 damaged cards were left out.</translation>
    </message>
    <message>
        <source>Cards Not Local</source>
        <translation>%1 is not on this computer; save it here first.</translation>
    </message>
    <message>
        <source>Cards More Problems</source>
        <translation>And %1 more.</translation>
    </message>
    <message>
        <source>No Thread to Read With</source>
        <translation>The system cannot start another task; close other programs and try again.</translation>
    </message>
</context>
</TS>

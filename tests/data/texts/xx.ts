<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- A language that nobody speaks, with the plural rules of Polish: one, a few, many. -->
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Job</name>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n pago</numerusform>
            <numerusform>%n pagi</numerusform>
            <numerusform>%n pagov</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” takes no jobs: %2.</source>
        <translation>%2! «%1» nu.</translation>
    </message>
    <message>
        <source>paper is jammed</source>
        <translation>papo hema</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2: what does not fit is cut off.</source>
        <translation>
            <numerusform>%2 mina: pago %1.</numerusform>
            <numerusform>%2 mina: pagi %1.</numerusform>
            <numerusform>%2 mina: %n pagov, %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 do %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>clauses of one sentence</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>where, and what is wrong there</comment>
        <translation>%2 («%1»)</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>%1 is a %2 and takes no text</source>
        <translation>%2 %1 nu texto</translation>
    </message>
    <message>
        <source>use %1</source>
        <comment>script commands</comment>
        <translation>si %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 has %n row(s), not %2</source>
        <translation>
            <numerusform>%1: %n rango, nu %2</numerusform>
            <numerusform>%1: %n rangi, nu %2</numerusform>
            <numerusform>%1: %n rangov, nu %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>the document has no pages</source>
        <translation>nu pago</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>%1, line %2</source>
        <translation>%2@%1</translation>
    </message>
    <message>
        <source>the key “%1” has no value</source>
        <translation>nu %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterSearch</name>
    <message>
        <source>There is no printer</source>
        <translation>Nu printo</translation>
    </message>
</context>
</TS>

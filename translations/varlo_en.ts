<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FileList</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Notification</name>
    <message numerus="yes">
        <source>No names for %n file(s)</source>
        <translation>
            <numerusform>No name for %n file</numerusform>
            <numerusform>No names for %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) ready</source>
        <translation>
            <numerusform>%n name ready</numerusform>
            <numerusform>%n names ready</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) not renamed</source>
        <translation>
            <numerusform>%n file not renamed</numerusform>
            <numerusform>%n files not renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) renamed</source>
        <translation>
            <numerusform>%n file renamed</numerusform>
            <numerusform>%n files renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rename(s) taken back</source>
        <translation>
            <numerusform>%n rename taken back</numerusform>
            <numerusform>%n renames taken back</numerusform>
        </translation>
    </message>
</context>
</TS>

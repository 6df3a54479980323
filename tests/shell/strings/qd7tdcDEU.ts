<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>qd7console</name>
    <message>
        <source>E&amp;xit</source>
        <comment>1004</comment>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Current configuration</source>
        <comment>1100</comment>
        <translation>Aktuelle Konfiguration</translation>
    </message>
    <message>
        <source>Data source</source>
        <comment>1101</comment>
        <translation>Datenquelle</translation>
    </message>
    <message>
        <source>Current configuration</source>
        <comment>1102</comment>
        <translation>Derzeitige Konfiguration</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>1201</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <comment>1202</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>1207</comment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>KQM7002E  Error number = </source>
        <comment>1403</comment>
        <translation>KQM7002E  Fehlernummer = </translation>
    </message>
    <message>
        <source>Orvanta Monitor, Version 5.1.0 - Vantrel</source>
        <comment>1400</comment>
        <translation>Orvanta Monitor, Version 5.1.0 - Vantrel (Deutsch)</translation>
    </message>
</context>
</TS>

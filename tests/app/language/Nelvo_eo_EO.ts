<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="eo_EO" sourcelanguage="en_US">
<context>
    <name>MBEMain</name>
    <message>
        <source>Stop</source>
        <translation>Haltu</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_CA" sourcelanguage="fr">
<context>
    <name></name>
    <message id="Localisation.Txt_Centime">
        <source>centime</source>
        <translation>cent</translation>
    </message>
    <message id="Localisation.Txt_Centimes">
        <source>centimes</source>
        <translation>cents</translation>
    </message>
    <message id="Localisation.Txt_Monnaie">
        <source>euro</source>
        <translation>dollar</translation>
    </message>
    <message id="Localisation.Txt_Monnaies">
        <source>euros</source>
        <translation>dollars</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="fr">
<context>
    <name></name>
    <message id="Localisation.Txt_Centime">
        <source>centime</source>
        <translation>penny</translation>
    </message>
    <message id="Localisation.Txt_Centimes">
        <source>centimes</source>
        <translation>pence</translation>
    </message>
    <message id="Localisation.Txt_Monnaie">
        <source>euro</source>
        <translation>pound</translation>
    </message>
    <message id="Localisation.Txt_Monnaies">
        <source>euros</source>
        <translation>pounds</translation>
    </message>
</context>
</TS>

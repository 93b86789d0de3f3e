<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_BE" sourcelanguage="fr">
<context>
    <name></name>
    <message id="Localisation.A_LangLoc">
        <source>fr</source>
        <extracomment>Not a text: which words numbers are spelled in at first, one of &quot;en&quot;, &quot;fr&quot; and &quot;ch be&quot;.</extracomment>
        <translation>ch be</translation>
    </message>
</context>
</TS>

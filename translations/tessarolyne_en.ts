<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name></name>
    <message id="Localisation.A_LangLoc">
        <source>fr</source>
        <extracomment>Not a text: which words numbers are spelled in at first, one of &quot;en&quot;, &quot;fr&quot; and &quot;ch be&quot;.</extracomment>
        <translation>en</translation>
    </message>
    <message id="Localisation.A_SigneDecimal">
        <source>,</source>
        <extracomment>Not a text: the sign that stands before decimals, &quot;.&quot; or &quot;,&quot;. With &quot;.&quot;, &quot;1,234&quot; is read as 1234.</extracomment>
        <translation>.</translation>
    </message>
    <message id="Localisation.Acc_Calcul">
        <source>Calcul en cours</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Calculation under way</translation>
    </message>
    <message id="Localisation.Acc_CheckBoxTrUnion">
        <source>Traits d'union</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Hyphens</translation>
    </message>
    <message id="Localisation.Acc_Copier">
        <source>Copier : ¿%</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Copy: ¿%</translation>
    </message>
    <message id="Localisation.Acc_EdFieldNbNbresLigne">
        <source>Nombres premiers par ligne du fichier</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Primes per line of the file</translation>
    </message>
    <message id="Localisation.Acc_EditFieldAffAu">
        <source>Rang du dernier nombre affiché</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Rank of the last prime shown</translation>
    </message>
    <message id="Localisation.Acc_EditFieldAffDu">
        <source>Rang du premier nombre affiché</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Rank of the first prime shown</translation>
    </message>
    <message id="Localisation.Acc_EditFieldBaseDest">
        <source>Nombre en base d'arrivée</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Number in the destination base</translation>
    </message>
    <message id="Localisation.Acc_EditFieldBaseOrg">
        <source>Nombre en base de départ</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Number in the source base</translation>
    </message>
    <message id="Localisation.Acc_EditFieldCentime">
        <source>Centime au singulier</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Hundredth, singular</translation>
    </message>
    <message id="Localisation.Acc_EditFieldCentimes">
        <source>Centime au pluriel</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Hundredth, plural</translation>
    </message>
    <message id="Localisation.Acc_EditFieldFin">
        <source>Calculer jusqu'à</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Compute up to</translation>
    </message>
    <message id="Localisation.Acc_EditFieldMonnaie">
        <source>Devise au singulier</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Currency, singular</translation>
    </message>
    <message id="Localisation.Acc_EditFieldMonnaies">
        <source>Devise au pluriel</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Currency, plural</translation>
    </message>
    <message id="Localisation.Acc_Nombre">
        <source>Nombre </source>
        <extracomment>For screen readers.</extracomment>
        <translation>Number </translation>
    </message>
    <message id="Localisation.Acc_PopupMenuBaseDest">
        <source>Base d'arrivée</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Destination base</translation>
    </message>
    <message id="Localisation.Acc_PopupMenuBaseOrg">
        <source>Base de départ</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Source base</translation>
    </message>
    <message id="Localisation.Acc_PopupMenuLg">
        <source>Langue du montant en lettres</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Language of the amount in words</translation>
    </message>
    <message id="Localisation.Acc_TxtAreaDecomp1er">
        <source>Facteurs premiers</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Prime factors</translation>
    </message>
    <message id="Localisation.Acc_TxtAreaLettres">
        <source>Montant en lettres</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Amount in words</translation>
    </message>
    <message id="Localisation.Acc_TxtAreaListeNbres1ers">
        <source>Nombres premiers affichés</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Primes shown</translation>
    </message>
    <message id="Localisation.Acc_VerMaJ">
        <source>Recherche d'une mise à jour</source>
        <extracomment>For screen readers.</extracomment>
        <translation>Looking for an update</translation>
    </message>
    <message id="Localisation.Alt_BevButtDejDon">
        <source>J</source>
        <translation>I</translation>
    </message>
    <message id="Localisation.Alt_BevelButtonListe">
        <source>L</source>
        <translation>L</translation>
    </message>
    <message id="Localisation.Alt_Btn_FaireDon">
        <source>F</source>
        <translation>M</translation>
    </message>
    <message id="Localisation.Alt_CheckBoxAnnonces">
        <source>F</source>
        <translation>A</translation>
    </message>
    <message id="Localisation.Alt_CheckBoxAutoUpdt">
        <source>V</source>
        <translation>U</translation>
    </message>
    <message id="Localisation.Alt_CheckBoxFormatAuto">
        <source>O</source>
        <translation>A</translation>
    </message>
    <message id="Localisation.Alt_CheckBoxMajusc">
        <source>M</source>
        <translation>S</translation>
    </message>
    <message id="Localisation.Alt_GroupBox1">
        <source>B</source>
        <translation>B</translation>
    </message>
    <message id="Localisation.Alt_GroupBox2">
        <source>P</source>
        <translation>P</translation>
    </message>
    <message id="Localisation.Alt_GroupBoxLettre">
        <source>C</source>
        <translation>W</translation>
    </message>
    <message id="Localisation.Alt_Menu_Aide">
        <source>A</source>
        <translation>H</translation>
    </message>
    <message id="Localisation.Alt_Menu_AideAide">
        <source>A</source>
        <translation>H</translation>
    </message>
    <message id="Localisation.Alt_Menu_AppleApropos">
        <source>P</source>
        <translation>B</translation>
    </message>
    <message id="Localisation.Alt_Menu_AppleVMaJ">
        <source>V</source>
        <translation>U</translation>
    </message>
    <message id="Localisation.Alt_Menu_ChoiFichNbP">
        <source>C</source>
        <translation>C</translation>
    </message>
    <message id="Localisation.Alt_Menu_Edit">
        <source>I</source>
        <translation>E</translation>
    </message>
    <message id="Localisation.Alt_Menu_EditClear">
        <source>E</source>
        <translation>L</translation>
    </message>
    <message id="Localisation.Alt_Menu_EditCopy">
        <source>O</source>
        <translation>C</translation>
    </message>
    <message id="Localisation.Alt_Menu_EditCut">
        <source>C</source>
        <translation>T</translation>
    </message>
    <message id="Localisation.Alt_Menu_EditPaste">
        <source>L</source>
        <translation>P</translation>
    </message>
    <message id="Localisation.Alt_Menu_EditSelectAll">
        <source>T</source>
        <translation>A</translation>
    </message>
    <message id="Localisation.Alt_Menu_Fichier">
        <source>F</source>
        <translation>F</translation>
    </message>
    <message id="Localisation.Alt_Menu_Preferences">
        <source>R</source>
        <translation>E</translation>
    </message>
    <message id="Localisation.Alt_Menu_SauvFichNbP">
        <source>E</source>
        <translation>S</translation>
    </message>
    <message id="Localisation.Alt_PushButtAnnuler">
        <source>A</source>
        <translation>C</translation>
    </message>
    <message id="Localisation.Alt_PushButtDecomposer">
        <source>D</source>
        <translation>C</translation>
    </message>
    <message id="Localisation.Alt_PushButtOk">
        <source>O</source>
        <translation>O</translation>
    </message>
    <message id="Localisation.Alt_PushButtonCalcPrems">
        <source>C</source>
        <translation>C</translation>
    </message>
    <message id="Localisation.Alt_PushButtonFichier">
        <source>F</source>
        <translation>F</translation>
    </message>
    <message id="Localisation.Alt_StaticTextAffAu">
        <source>U</source>
        <translation>T</translation>
    </message>
    <message id="Localisation.Alt_StaticTextAffDu">
        <source>A</source>
        <translation>S</translation>
    </message>
    <message id="Localisation.Alt_Txt_EnBase">
        <source>E</source>
        <translation>I</translation>
    </message>
    <message id="Localisation.BevButtDejDon_HT">
        <source>Cette fenêtre ne s&apos;ouvrira plus d&apos;elle-même.</source>
        <translation>This window won&apos;t open by itself any more.</translation>
    </message>
    <message id="Localisation.BevelButtListe">
        <source>Liste Nb 1ers</source>
        <translation>Prime List</translation>
    </message>
    <message id="Localisation.BevelButtonListe_HT">
        <source>Ouvre ou ferme la fenêtre des nombres premiers et de leur fichier.</source>
        <translation>Opens or closes the window with the primes and their file.</translation>
    </message>
    <message id="Localisation.BoutonOk_HT">
        <source>Ferme cette fenêtre.</source>
        <translation>Closes this window.</translation>
    </message>
    <message id="Localisation.Btn_Annuler">
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message id="Localisation.Btn_CalcPrems">
        <source>Calculer Nbres 1ers jusqu&apos;à :</source>
        <translation>Calculate Primes up to:</translation>
    </message>
    <message id="Localisation.Btn_ChangFich">
        <source>Changer Fichier</source>
        <translation>Change File</translation>
    </message>
    <message id="Localisation.Btn_ChangFich_HT">
        <source>⇧ clic pour sauvegarder ce fichier
⌥ clic pour éditer le fichier texte dans TextEdit</source>
        <translation>Shift-click to save this file
Ctrl-click to edit the file in a text editor</translation>
    </message>
    <message id="Localisation.Btn_ChoixFich">
        <source>Choisir Fichier</source>
        <translation>Choose File</translation>
    </message>
    <message id="Localisation.Btn_Decomposer">
        <source>Décomposer</source>
        <translation>Factor</translation>
    </message>
    <message id="Localisation.Btn_DejDon">
        <source>J&apos;ai déjà donné !</source>
        <translation>I Have Already Donated!</translation>
    </message>
    <message id="Localisation.Btn_Enreg">
        <source>Enregistrer</source>
        <translation>Save</translation>
    </message>
    <message id="Localisation.Btn_FaireDon">
        <source>Faire un don…</source>
        <translation>Make a Donation…</translation>
    </message>
    <message id="Localisation.Btn_FAQ">
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
    <message id="Localisation.Btn_Fermer">
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message id="Localisation.Btn_Garder">
        <source>Garder</source>
        <translation>Keep</translation>
    </message>
    <message id="Localisation.Btn_Historic">
        <source>Historique</source>
        <translation>History</translation>
    </message>
    <message id="Localisation.Btn_LireAbout">
        <source>Lire À propos</source>
        <translation>Read “About”</translation>
    </message>
    <message id="Localisation.Btn_NePasEnreg">
        <source>Ne pas enregistrer</source>
        <translation>Don&apos;t Save</translation>
    </message>
    <message id="Localisation.Btn_NePasQuit">
        <source>Ne pas quitter</source>
        <translation>Don&apos;t Quit</translation>
    </message>
    <message id="Localisation.Btn_NePlusUtiliser">
        <source>Ne plus utiliser</source>
        <translation>Stop Using It</translation>
    </message>
    <message id="Localisation.Btn_Ok">
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message id="Localisation.Btn_SauvFich">
        <source>Sauver Fichier</source>
        <translation>Save File</translation>
    </message>
    <message id="Localisation.Btn_SauvFich_HT">
        <source>⇧ clic pour choisir un fichier existant
⌥ clic pour éditer le fichier texte dans TextEdit</source>
        <translation>Shift-click to choose an existing file
Ctrl-click to edit the file in a text editor</translation>
    </message>
    <message id="Localisation.Btn_SiteWeb">
        <source>Site Web</source>
        <translation>Website</translation>
    </message>
    <message id="Localisation.Btn_StopEtQuit">
        <source>Stopper et quitter</source>
        <translation>Stop and Quit</translation>
    </message>
    <message id="Localisation.ChBoxFormatAuto">
        <source>Format Auto</source>
        <translation>Auto Format</translation>
    </message>
    <message id="Localisation.ChBoxMajusc">
        <source>Première lettre en majuscule</source>
        <translation>Start with a capital letter</translation>
    </message>
    <message id="Localisation.CheckBoxAnnonces_HT">
        <source>Le lecteur d&apos;écran dit de lui-même les résultats et ce qui est copié.</source>
        <translation>The screen reader says by itself what came out and what was copied.</translation>
    </message>
    <message id="Localisation.CheckBoxAutoUpdt_HT">
        <source>Demande une fois par jour au site de l&apos;auteur quelle est la version actuelle.</source>
        <translation>Asks the author&apos;s site once a day which version is the current one.</translation>
    </message>
    <message id="Localisation.CheckBoxFormatAuto_HT">
        <source>Groupe les chiffres des nombres, comme dans 1 234 567.</source>
        <translation>Puts the digits of numbers in groups, as in 1 234 567.</translation>
    </message>
    <message id="Localisation.CheckBoxMajusc_HT">
        <source>Commence le montant en lettres par une majuscule.</source>
        <translation>Starts the amount in words with a capital letter.</translation>
    </message>
    <message id="Localisation.CheckBoxTrUnion_HT">
        <source>Relie les mots du montant par des traits d&apos;union, comme dans vingt-et-un.</source>
        <translation>Joins the words of the amount by hyphens, as in twenty-one.</translation>
    </message>
    <message id="Localisation.EdFieldNbNbresLigne_HT">
        <source>Entrer ici la quantité de nombres premiers que vous voulez par ligne dans le fichier</source>
        <translation>Enter here how many primes you want per line in the file</translation>
    </message>
    <message id="Localisation.EditFieldAffAu_HT">
        <source>Entrer 0 afin d&apos;afficher jusqu&apos;au dernier nombre premier</source>
        <translation>Enter 0 to show everything up to the last prime</translation>
    </message>
    <message id="Localisation.EditFieldAffDu_HT">
        <source>Premier rang à afficher : la touche Retour montre la liste à partir de là.</source>
        <translation>First rank to show: the Return key shows the list from there.</translation>
    </message>
    <message id="Localisation.EditFieldBaseDest_HT">
        <source>Le nombre converti dans la base choisie à côté.</source>
        <translation>The number converted to the base chosen beside it.</translation>
    </message>
    <message id="Localisation.EditFieldBaseOrg_HT">
        <source>Le nombre dans la base choisie à côté : il peut être saisi ici aussi.</source>
        <translation>The number in the base chosen beside it: it can be typed here too.</translation>
    </message>
    <message id="Localisation.EditFieldCentime_HT">
        <source>Le centième de la devise au singulier, pour 0 et 1 : son pluriel est à gauche.</source>
        <translation>The hundredth of the currency in the singular, for 0 and 1: its plural is on the left.</translation>
    </message>
    <message id="Localisation.EditFieldCentimes_HT">
        <source>Le centième de la devise au pluriel, à partir de 2 : son singulier est à droite.</source>
        <translation>The hundredth of the currency in the plural, for 2 and more: its singular is on the right.</translation>
    </message>
    <message id="Localisation.EditFieldChercher_HT">
        <source>Entrée montre le nombre et son rang, ou ses voisins.</source>
        <translation>Return shows the number and its rank, or its neighbours.</translation>
    </message>
    <message id="Localisation.EditFieldFin_HT">
        <source>Limite du calcul, et au repos le dernier nombre premier connu.</source>
        <translation>Limit of the calculation, and at rest the last prime that is known.</translation>
    </message>
    <message id="Localisation.EditFieldMonnaie_HT">
        <source>La devise au singulier, pour 0 et 1 : son pluriel est à gauche.</source>
        <translation>The currency in the singular, for 0 and 1: its plural is on the left.</translation>
    </message>
    <message id="Localisation.EditFieldMonnaies_HT">
        <source>La devise au pluriel, à partir de 2 : son singulier est à droite.</source>
        <translation>The currency in the plural, for 2 and more: its singular is on the right.</translation>
    </message>
    <message id="Localisation.EditFieldNbre_HT">
        <source>Le nombre en base 10, avec deux décimales au plus pour les centimes.</source>
        <translation>The number in base 10, with at most two decimals for the cents.</translation>
    </message>
    <message id="Localisation.Email_HT">
        <source>Commence une lettre à cette adresse.</source>
        <translation>Starts a letter to this address.</translation>
    </message>
    <message id="Localisation.GpBox1">
        <source>Conversion de Base</source>
        <translation>Base Conversion</translation>
    </message>
    <message id="Localisation.GpBox2">
        <source>Décomposition en Nombres Premiers</source>
        <translation>Prime Factors</translation>
    </message>
    <message id="Localisation.GpBox3">
        <source>Conversion en Lettres</source>
        <translation>Number in Words</translation>
    </message>
    <message id="Localisation.Infos_StTextCopRight">
        <source>© 2026 Les auteurs de Tessarolyne. Licence MIT.</source>
        <translation>© 2026 The authors of Tessarolyne. MIT License.</translation>
    </message>
    <message id="Localisation.Infos_Text_Don">
        <source>Un don serait apprécié afin de m&apos;aider à continuer le développement de ce programme, car cela a un coût. Outre le temps passé, je dois payer mes licences.
 
Il suffit de cliquer le bouton PayPal ci-dessous, même si vous ne faites pas de don, pour ne plus voir apparaître cette fenêtre.
 
Merci beaucoup.</source>
        <translation>A donation would be appreciated to help me go on developing this program, which has its costs: besides the time I spend on it, I have to pay for the tools I use.
 
Just click the donation button below, even if you don&apos;t donate, and this window will not appear again.
 
Thank you very much.</translation>
    </message>
    <message id="Localisation.Infos_Texte">
        <source>Ce programme permet plusieurs choses :
 
☞ Convertir un nombre de n&apos;importe quelle base en n&apos;importe quelle base (vous pouvez entrer votre nombre dans la zone du haut en base 10, ou dans la zone au-dessous dans la base spécifiée).
 
☞ Décomposer un nombre en nombres premiers. La liste des nombres premiers peut être conservée dans un fichier.
 
☞ Transcrire ce nombre en lettres. Les transcriptions française et anglaise sont l&apos;œuvre des auteurs de Tessarolyne (@TESSAROLYNE_SITE@ et @TESSAROLYNE_SITE_2@).
 
Saisissez simplement les devises dans les zones prévues (⌥ clic ✎ pour remettre les valeurs par défaut).
 
Cliquez sur le bouton ✎ afin de copier la zone correspondante dans le presse-papiers.
 
Pressez la touche Escape pour stopper un calcul.
 
Ce programme est un logiciel libre : vous pouvez le redistribuer selon les termes de la licence MIT.
 
Cordialement,
Les auteurs de Tessarolyne
 
Toutes les suggestions sont les bienvenues.
Si vous remarquez des dysfonctionnements, merci de nous le faire savoir. 
 
Ce programme crée un fichier nommé “Tessarolyne Prefs.txt” dans le dossier Préférences.
 
Les auteurs déclinent toutes responsabilités quant à l&apos;utilisation de ce logiciel. Ils ne sauraient être tenus responsables d&apos;une quelconque perte de données suite à l&apos;utilisation de ce logiciel.
 
Un grand merci aux personnes suivantes pour les tests et les localisations.
Localisation anglaise : les auteurs de Tessarolyne</source>
        <extracomment>The @…@ are the authors&apos; sites; the build puts them in.</extracomment>
        <translation>This program can do several things:
 
☞ Convert a number from any base to any base (you can enter your number in the upper field in base 10, or in the field below it in the base given there).
 
☞ Break a number down into its prime factors. The list of primes can be kept in a file.
 
☞ Write the number out in words. The French and English transcriptions are the work of the authors of Tessarolyne (@TESSAROLYNE_SITE@ and @TESSAROLYNE_SITE_2@).
 
Simply type the currencies into their fields (Ctrl-click ✎ to restore the default values).
 
Click the ✎ button to copy the field beside it to the clipboard.
 
Press the Escape key to stop a calculation.
 
This program is free software: you may redistribute it under the terms of the MIT License.
 
Kind regards,
The authors of Tessarolyne
 
All suggestions are welcome.
If you notice anything that does not work, please let us know. 
 
This program creates a file named “Tessarolyne Prefs.txt” in the Preferences folder.
 
The authors accept no responsibility for the use of this software. They cannot be held liable for any loss of data resulting from its use.
 
Many thanks to the following people for testing and translating.
English translation: the authors of Tessarolyne</translation>
    </message>
    <message id="Localisation.Menu_Aide">
        <source>Aide</source>
        <translation>Help</translation>
    </message>
    <message id="Localisation.Menu_AideAide">
        <source>Aide Tessarolyne</source>
        <translation>Tessarolyne Help</translation>
    </message>
    <message id="Localisation.Menu_AppleApropos">
        <source>À propos de Tessarolyne</source>
        <translation>About Tessarolyne</translation>
    </message>
    <message id="Localisation.Menu_AppleVMaJ">
        <source>Vérifier les mises à jour…</source>
        <translation>Check for Updates…</translation>
    </message>
    <message id="Localisation.Menu_ChoiFichNbP">
        <source>Choisir Fichier des Nombres Premiers…</source>
        <translation>Choose Prime File…</translation>
    </message>
    <message id="Localisation.Menu_Edit">
        <source>Édition</source>
        <translation>Edit</translation>
    </message>
    <message id="Localisation.Menu_EditClear">
        <source>Effacer</source>
        <translation>Clear</translation>
    </message>
    <message id="Localisation.Menu_EditCopy">
        <source>Copier</source>
        <translation>Copy</translation>
    </message>
    <message id="Localisation.Menu_EditCut">
        <source>Couper</source>
        <translation>Cut</translation>
    </message>
    <message id="Localisation.Menu_EditPaste">
        <source>Coller</source>
        <translation>Paste</translation>
    </message>
    <message id="Localisation.Menu_EditSelectAll">
        <source>Tout sélectionner</source>
        <translation>Select All</translation>
    </message>
    <message id="Localisation.Menu_Fichier">
        <source>Fichier</source>
        <translation>File</translation>
    </message>
    <message id="Localisation.Menu_Preferences">
        <source>Préférences…</source>
        <translation>Preferences…</translation>
    </message>
    <message id="Localisation.Menu_SauvFichNbP">
        <source>Enregistrer Nombres Premiers sous…</source>
        <translation>Save Primes As…</translation>
    </message>
    <message id="Localisation.PopupMenuBaseDest_HT">
        <source>Base dans laquelle le nombre est converti.</source>
        <translation>Base to which the number is converted.</translation>
    </message>
    <message id="Localisation.PopupMenuBaseOrg_HT">
        <source>Base du nombre à gauche.</source>
        <translation>Base of the number on the left.</translation>
    </message>
    <message id="Localisation.PopupMenuLg_HT">
        <source>Langue du montant : en pour l&apos;anglais, fr pour le français, ch be pour celui de Suisse et de Belgique.</source>
        <translation>Language of the amount: en for English, fr for French, ch be for that of Switzerland and Belgium.</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAnnonces">
        <source>Faire annoncer les résultats au lecteur d'écran</source>
        <translation>Announce results to the screen reader</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAutoUpdt">
        <source>Vérifier automatiquement les mises à jour</source>
        <translation>Check for updates automatically</translation>
    </message>
    <message id="Localisation.ProgressBarNb1ers_HT">
        <source>Part du fichier qui est lue ou écrite.</source>
        <translation>How much of the file has been read or written.</translation>
    </message>
    <message id="Localisation.PushButtAnnuler_HT">
        <source>Ferme sans rien changer aux préférences.</source>
        <translation>Closes and leaves the preferences as they were.</translation>
    </message>
    <message id="Localisation.PushButtDecomposer_HT">
        <source>Décompose un nombre trop long à décomposer pendant la saisie.</source>
        <translation>Factors a number that took too long while typing.</translation>
    </message>
    <message id="Localisation.PushButtOk_HT">
        <source>Ferme et garde ces préférences.</source>
        <translation>Closes and keeps these preferences.</translation>
    </message>
    <message id="Localisation.PushButtonCalcPrems_HT">
        <source>Calcule les nombres premiers jusqu&apos;à la limite à droite.</source>
        <translation>Calculates the primes up to the limit on the right.</translation>
    </message>
    <message id="Localisation.PushButtonPressPap_HT">
        <source>Copie le nombre à gauche dans le presse-papiers.</source>
        <translation>Copies the number on the left to the clipboard.</translation>
    </message>
    <message id="Localisation.PushButtonPressPapLettr_HT">
        <source>Copie le montant en lettres : Ctrl-clic remet les devises par défaut.</source>
        <translation>Copies the amount in words: Ctrl-click restores the default currencies.</translation>
    </message>
    <message id="Localisation.PushButtonPressPapPrem_HT">
        <source>Copie les facteurs dans le presse-papiers.</source>
        <translation>Copies the factors to the clipboard.</translation>
    </message>
    <message id="Localisation.RadioButton09AZ_HT">
        <source>Chiffres avant lettres : en base 16, dix s&apos;écrit A et quinze F.</source>
        <translation>Digits before letters: in base 16, ten is A and fifteen is F.</translation>
    </message>
    <message id="Localisation.RadioButtonAZ09_HT">
        <source>Lettres avant chiffres : en base 16, zéro s&apos;écrit A et quinze P.</source>
        <translation>Letters before digits: in base 16, zero is A and fifteen is P.</translation>
    </message>
    <message id="Localisation.StTextAffAu">
        <source>au</source>
        <extracomment>Between two ranks.</extracomment>
        <translation>to</translation>
    </message>
    <message id="Localisation.StTextAffDu">
        <source>Afficher Nbres 1ers du</source>
        <extracomment>Followed by a rank, then StTextAffAu, a rank, StTextEme: “Show primes from no. 1 to 500 incl.”</extracomment>
        <translation>Show primes from no.</translation>
    </message>
    <message id="Localisation.StTextEme">
        <source>ème</source>
        <extracomment>Behind the last rank; very short.</extracomment>
        <translation>incl.</translation>
    </message>
    <message id="Localisation.StTextFormNbre">
        <source>Formatage des nombres</source>
        <translation>Formatting the numbers</translation>
    </message>
    <message id="Localisation.TexteInfo_HT">
        <source>Le mode d&apos;emploi en bref, les auteurs et la licence.</source>
        <translation>How to use the program in short, its authors and its license.</translation>
    </message>
    <message id="Localisation.Touche_Ctrl">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="Localisation.Touches_Liste">
        <source>Ctrl+F cherche un nombre.</source>
        <translation>Ctrl+F finds a number.</translation>
    </message>
    <message id="Localisation.Touches_Zones">
        <source>F6 va d&apos;une commande à l&apos;autre, ↑ et ↓ aux nombres précédents.</source>
        <translation>F6 goes from control to control, ↑ and ↓ to earlier numbers.</translation>
    </message>
    <message id="Localisation.Txt_AideNonDispo">
        <source>L&apos;aide n&apos;est pas disponible pour ¿%.
Veuillez lire “¿%”.
 
Cette version a été compilée pour ¿%.</source>
        <extracomment>The name of the program, the menu item about it, and the kind of build.</extracomment>
        <translation>Help is not available for ¿%.
Please read “¿%”.
 
This version was built for ¿%.</translation>
    </message>
    <message id="Localisation.TxtAreaDecomp1er_HT">
        <source>Le nombre comme produit de nombres premiers.</source>
        <translation>The number as a product of primes.</translation>
    </message>
    <message id="Localisation.TxtAreaLettres_HT">
        <source>Le nombre en lettres, comme sur un chèque.</source>
        <translation>The number in words, as on a cheque.</translation>
    </message>
    <message id="Localisation.TxtAreaListeNbres1ers_HT">
        <source>Les nombres premiers de ces rangs, 2000 au plus à la fois.</source>
        <translation>The primes of these ranks, at most 2000 at a time.</translation>
    </message>
    <message id="Localisation.Txt_Attente">
        <source>…</source>
        <translation>…</translation>
    </message>
    <message id="Localisation.Txt_AuDela">
        <source>Au-delà de la liste, qui va jusqu&apos;à ¿%</source>
        <translation>Beyond the list, which goes up to ¿%</translation>
    </message>
    <message id="Localisation.Txt_Avancement">
        <source>¿% % · Esc : arrêter</source>
        <translation>¿%% · Esc to stop</translation>
    </message>
    <message id="Localisation.Txt_AvecRang">
        <source>¿% (n° ¿%)</source>
        <translation>¿% (no. ¿%)</translation>
    </message>
    <message id="Localisation.Txt_CalculArrete">
        <source>Calcul arrêté</source>
        <translation>Calculation stopped</translation>
    </message>
    <message id="Localisation.Txt_CalculEnCours">
        <source>Des calculs sont en cours, souhaitez-vous les stopper ?</source>
        <translation>Calculations are in progress. Do you want to stop them?</translation>
    </message>
    <message id="Localisation.Txt_CalculFini">
        <source>Calcul terminé : ¿%</source>
        <translation>Calculation finished: ¿%</translation>
    </message>
    <message id="Localisation.Txt_CeciEffSonCont">
        <source>Cela aura pour effet d&apos;effacer son contenu actuel.</source>
        <translation>This will erase its current contents.</translation>
    </message>
    <message id="Localisation.Txt_CeFichContPasNb1er">
        <source>Ce fichier ne contient pas de nombres premiers.
Souhaitez-vous enregistrer vos nombres premiers dans ce fichier ?</source>
        <translation>This file does not contain primes.
Do you want to save your primes in this file?</translation>
    </message>
    <message id="Localisation.Txt_Centime">
        <source>centime</source>
        <translation>cent</translation>
    </message>
    <message id="Localisation.Txt_Centimes">
        <source>centimes</source>
        <translation>cents</translation>
    </message>
    <message id="Localisation.Txt_Chercher">
        <source>Nombre à chercher dans la liste</source>
        <translation>Number to find in the list</translation>
    </message>
    <message id="Localisation.Txt_Copie">
        <source>Copié : ¿%</source>
        <extracomment>For screen readers, with what is on the clipboard.</extracomment>
        <translation>Copied: ¿%</translation>
    </message>
    <message id="Localisation.Txt_CopierForme">
        <source>Copier ¿%</source>
        <translation>Copy ¿%</translation>
    </message>
    <message id="Localisation.Txt_CopierSansEsp">
        <source>Copier sans espaces</source>
        <translation>Copy without blanks</translation>
    </message>
    <message id="Localisation.Txt_EchapStoppe">
        <source>Esc : arrêter</source>
        <translation>Esc to stop</translation>
    </message>
    <message id="Localisation.Txt_EnBase">
        <source>en base </source>
        <extracomment>A number follows.</extracomment>
        <translation>in base </translation>
    </message>
    <message id="Localisation.Txt_EntrerNbreAuDessousDe">
        <source>Vous devez entrer un nombre en dessous d&apos;un billion (mille milliards) !</source>
        <extracomment>Shown in the place of the words: of 1 000 000 000 and above in English.</extracomment>
        <translation>You must enter a number below 1 000 000 000!</translation>
    </message>
    <message id="Localisation.Txt_EntrerUnNbrePositif">
        <source>Vous devez entrer un nombre positif !</source>
        <translation>You must enter a positive number!</translation>
    </message>
    <message id="Localisation.Txt_ErrBase">
        <source>#Erreur Base !</source>
        <translation>#Base Error!</translation>
    </message>
    <message id="Localisation.Txt_ErrDeDecomp">
        <source>Il y a une erreur de décomposition !
Nombre Décomposé = ¿% 
Nombre Recomposé = ¿% </source>
        <extracomment>Two numbers.</extracomment>
        <translation>There is an error in the factors!
Number factored = ¿% 
Product of the factors = ¿% </translation>
    </message>
    <message id="Localisation.Txt_ErreurEcritFich">
        <source>Il y a eu une erreur pendant l&apos;écriture du fichier.</source>
        <translation>An error occurred while the file was being written.</translation>
    </message>
    <message id="Localisation.Txt_ErreurLectFich">
        <source>Il y a eu une erreur pendant la lecture du fichier.</source>
        <translation>An error occurred while the file was being read.</translation>
    </message>
    <message id="Localisation.Txt_ErrNbre">
        <source>#Erreur Nbre !</source>
        <translation>#Number Error!</translation>
    </message>
    <message id="Localisation.Txt_ErrTranscBase">
        <source>Il y a une erreur de transcription de base !
Résultat ¿% 
depuis base 10 = ¿% 
depuis base ¿% = ¿% </source>
        <extracomment>Txt_EnBase with a base, a number, a base, a number.</extracomment>
        <translation>There is an error in the base conversion!
Result ¿% 
from base 10 = ¿% 
from base ¿% = ¿% </translation>
    </message>
    <message id="Localisation.Txt_FichAPlusDeNb1ers">
        <source>Un autre programme a enregistré plus de nombres premiers dans ce fichier. Il a été conservé tel quel.</source>
        <translation>Another program has saved more primes in this file. It was kept as it is.</translation>
    </message>
    <message id="Localisation.Txt_FichNomSurLignes">
        <source>Le nom de ce fichier ou d&apos;un de ses dossiers contient un saut de ligne : ce fichier ne peut pas être retenu.</source>
        <translation>The name of this file or of one of its folders contains a line break: this file cannot be used.</translation>
    </message>
    <message id="Localisation.Txt_FichTropGrand">
        <source>Ce fichier est plus grand que toute liste de nombres premiers.</source>
        <translation>This file is larger than any list of primes.</translation>
    </message>
    <message id="Localisation.Txt_IlYaNouvNbPrem">
        <source>Il y a ¿% nouveaux nombres premiers, souhaitez vous les enregistrer ?</source>
        <extracomment>How many, 1 or more.</extracomment>
        <translation>New primes found: ¿%. Do you want to save them?</translation>
    </message>
    <message id="Localisation.Txt_MerciContactAuteur">
        <source>Merci de contacter l&apos;auteur du logiciel</source>
        <translation>Please contact the author of the software</translation>
    </message>
    <message id="Localisation.Txt_Monnaie">
        <source>euro</source>
        <translation>euro</translation>
    </message>
    <message id="Localisation.Txt_Monnaies">
        <source>euros</source>
        <translation>euros</translation>
    </message>
    <message id="Localisation.Txt_NbreDeNbPrem">
        <source>Nombre de Nombres Premiers</source>
        <extracomment>The first line of a prime file; &quot; : &quot; and a number follow.</extracomment>
        <translation>Number of Primes</translation>
    </message>
    <message id="Localisation.Txt_NbreEnAttente">
        <source>Le nombre saisi attend la fin du calcul.</source>
        <translation>The number typed waits for the run to end.</translation>
    </message>
    <message id="Localisation.Txt_NbrePrecedent">
        <source>Correspond au nombre précédent.</source>
        <extracomment>Of factors or words that are dimmed, since another base made another number.</extracomment>
        <translation>Goes with the number before.</translation>
    </message>
    <message id="Localisation.Txt_NombresPremiers">
        <source> nombres premiers</source>
        <extracomment>A number stands before it, 4 or more.</extracomment>
        <translation> primes</translation>
    </message>
    <message id="Localisation.Txt_NonPremier">
        <source>¿% n&apos;est pas premier. Voisins : ¿%</source>
        <translation>¿% is not prime. Neighbours: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PasDeFichNbPremSelect">
        <source>Pas de fichier de nombres premiers sélectionné</source>
        <translation>No prime file selected</translation>
    </message>
    <message id="Localisation.Txt_PlusGdNbrePossible">
        <source>Plus grand nombre possible = </source>
        <extracomment>A number follows.</extracomment>
        <translation>Largest possible number = </translation>
    </message>
    <message id="Localisation.Txt_PourLesGdsNbres">
        <source>Pour les grands nombres, cliquez Décomposer.
Cela peut être long.</source>
        <translation>For large numbers, click Factor.
This may take a while.</translation>
    </message>
    <message id="Localisation.Txt_PremsPerdus">
        <source>Faute de fichier, nouveaux nombres premiers perdus en quittant : ¿%</source>
        <extracomment>How many, 1 or more.</extracomment>
        <translation>New primes that are lost when you quit, for want of a file: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RefusBase">
        <source>Seulement des chiffres de la base ¿%</source>
        <translation>Only digits of base ¿%</translation>
    </message>
    <message id="Localisation.Txt_RefusChiffres">
        <source>¿% chiffres au plus</source>
        <translation>¿% digits at most</translation>
    </message>
    <message id="Localisation.Txt_RefusDecimales">
        <source>Deux décimales au plus</source>
        <translation>Two decimals at most</translation>
    </message>
    <message id="Localisation.Txt_RefusEntier">
        <source>Seulement des nombres entiers</source>
        <translation>Whole numbers only</translation>
    </message>
    <message id="Localisation.Txt_RefusMoins">
        <source>Pas de signe moins</source>
        <translation>No minus sign</translation>
    </message>
    <message id="Localisation.Txt_RefusNombre">
        <source>Cette zone ne prend qu&apos;un nombre</source>
        <translation>This field takes a number only</translation>
    </message>
    <message id="Localisation.Txt_Rempl_Imposs">
        <source>Remplacement impossible !</source>
        <translation>This file cannot be replaced!</translation>
    </message>
    <message id="Localisation.Txt_ResetMonnaiDef">
        <source>Remettre les devises par défaut ?</source>
        <translation>Restore the default currencies?</translation>
    </message>
    <message id="Localisation.Txt_SelectDossSauv">
        <source>Sélectionner le dossier de sauvegarde :</source>
        <translation>Select the folder to save in:</translation>
    </message>
    <message id="Localisation.Txt_SelectFichierNbPrem">
        <source>Sélectionner le Fichier des Nombres Premiers :</source>
        <translation>Select the prime file:</translation>
    </message>
    <message id="Localisation.Txt_SiVsVoulezConservNbPrem">
        <source>Si vous souhaitez conserver les nombres premiers calculés, vous devrez sélectionner un fichier depuis la fenêtre Liste des Nombres Premiers.</source>
        <translation>If you want to keep the primes that have been calculated, you need to select a file in the Prime List window.</translation>
    </message>
    <message id="Localisation.Txt_Ver_a_jour">
        <source>Cette version est à jour.</source>
        <translation>This version is up to date.</translation>
    </message>
    <message id="Localisation.Txt_Ver_MaJ_impo">
        <source>Impossible de vérifier les mises à jour pour le moment, veuillez vérifier votre connexion internet ou réessayer plus tard.</source>
        <translation>Cannot check for updates at the moment. Please check your internet connection or try again later.</translation>
    </message>
    <message id="Localisation.Txt_Ver_Nouv">
        <source>Une nouvelle mise à jour est disponible.</source>
        <translation>A new update is available.</translation>
    </message>
    <message id="Localisation.Txt_VoulVsConservFich">
        <source>Souhaitez-vous conserver le fichier de nombres premiers que vous aviez préalablement sélectionné ou ne plus utiliser de fichier ?</source>
        <translation>Do you want to keep the prime file that you selected earlier, or stop using a file?</translation>
    </message>
    <message id="Localisation.Txt_VsPouvPasMettre0">
        <source>Vous ne pouvez pas mettre 0 nombre premier par ligne, cette valeur a été remise à 10 !</source>
        <translation>You cannot have 0 primes per line. The value has been set back to 10!</translation>
    </message>
    <message id="Localisation.Web_HT">
        <source>Ouvre ce site dans le navigateur.</source>
        <translation>Opens this site in the browser.</translation>
    </message>
    <message id="Localisation.WinChargNb1ersTitre">
        <source>Chargement des Nombres Premiers</source>
        <translation>Loading Primes</translation>
    </message>
    <message id="Localisation.WinNbresTitre">
        <source>Liste des Nombres Premiers</source>
        <extracomment>Also the name that is proposed for the file of primes.</extracomment>
        <translation>Prime List</translation>
    </message>
    <message id="Localisation.WinPref_Title">
        <source>Préférences</source>
        <translation>Preferences</translation>
    </message>
    <message id="Localisation.WinSauvNb1ersTitre">
        <source>Sauvegarde des Nombres Premiers</source>
        <translation>Saving Primes</translation>
    </message>
</context>
</TS>

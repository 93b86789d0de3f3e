"""What assistive technology calls each control of the main window, in one place.

A control is found by its accessible name and its role, as a screen reader finds it; the program shows nothing
else of itself to the outside.
"""

# Control of the program: (accessible name, role as AT-SPI says it), in French, which the program speaks in the C locale.
CONTROLS = {
    "EditFieldNbre": ("Nombre en base 10", "text"),
    "EditFieldBaseOrg": ("Nombre en base de départ", "text"),
    "EditFieldMonnaies": ("Devise au pluriel", "text"),
    "EditFieldMonnaie": ("Devise au singulier", "text"),
    "EditFieldCentimes": ("Centime au pluriel", "text"),
    "EditFieldCentime": ("Centime au singulier", "text"),
    "CheckBoxMajusc": ("Première lettre en majuscule", "check box"),
    "PopupMenuLg": ("Langue du montant en lettres", "combo box"),
    "CheckBoxTrUnion": ("Traits d'union", "check box"),
    "EditFieldBaseDest": ("Nombre en base d'arrivée", "text"),
    "PopupMenuBaseOrg": ("Base de départ", "combo box"),
    "PopupMenuBaseDest": ("Base d'arrivée", "combo box"),
    "CheckBoxFormatAuto": ("Format Auto", "check box"),
    "RadioButton09AZ 0": ("01…89AB…YZ", "radio button"),
    "TxtAreaDecomp1er": ("Facteurs premiers", "text"),
    "TxtAreaLettres": ("Montant en lettres", "text"),
    "BevelButtonListe": ("Liste Nb 1ers", "check box"),
    "PushButtonPressPapBOrg": ("Copier : Nombre en base de départ", "push button"),
    "PushButtonPressPapBDest": ("Copier : Nombre en base d'arrivée", "push button"),
    "PushButtonPressPapLettr": ("Copier : Montant en lettres", "push button"),
    "PushButtonPressPapPrem": ("Copier : Facteurs premiers", "push button"),
    "PushButtonFichier": ("Changer Fichier", "push button"),
    "EditFieldFin": ("Calculer jusqu'à", "text"),
    "EditFieldAffDu": ("Rang du premier nombre affiché", "text"),
    "EditFieldAffAu": ("Rang du dernier nombre affiché", "text"),
    "TxtAreaListeNbres1ers": ("Nombres premiers affichés", "text"),
    "EditFieldNbNbresLigne": ("Nombres premiers par ligne du fichier", "text"),
    "StaticTextNbNbre1ers": ("166 nombres premiers", "label"),
}

# Where Tab goes, in its order, before it begins again: the first of them.
TAB_ORDER = list(CONTROLS)[:9]

WINDOW_TITLE = "Tessarolyne"

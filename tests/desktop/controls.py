"""What assistive technology calls each control of the main window, in one place.

A control is found by its accessible name and its role, as a screen reader finds it; the program shows nothing
else of itself to the outside.
"""

# The captions that several names are made of; the program shows its French texts in the C locale.
_CONVERSION = "Conversion de Base"
_WORDS = "Conversion en Lettres"

# Control of the program: (accessible name, role as AT-SPI says it).
CONTROLS = {
    "EditFieldNbre": ("en base 10", "text"),
    "EditFieldBaseOrg": (f"{_CONVERSION} 1", "text"),
    "EditFieldBaseDest": (f"{_CONVERSION} 2", "text"),
    "PopupMenuBaseOrg": (f"{_CONVERSION} 1", "combo box"),
    "PopupMenuBaseDest": (f"{_CONVERSION} 2", "combo box"),
    "EditFieldMonnaies": (f"{_WORDS} : euros", "text"),
    "EditFieldMonnaie": (f"{_WORDS} : euro", "text"),
    "EditFieldCentimes": (f"{_WORDS} : centimes", "text"),
    "EditFieldCentime": (f"{_WORDS} : centime", "text"),
    "CheckBoxMajusc": ("Première lettre en majuscule", "check box"),
    "PopupMenuLg": (_WORDS, "combo box"),
    "CheckBoxTrUnion": (f"{_WORDS} : -", "check box"),
    "CheckBoxFormatAuto": ("Format Auto", "check box"),
    "RadioButton09AZ 0": ("01…89AB…YZ", "radio button"),
    "RadioButton09AZ 1": ("AB…YZ01…89", "radio button"),
    "TxtAreaDecomp1er": ("Décomposition en Nombres Premiers", "text"),
    "TxtAreaLettres": (_WORDS, "text"),
    "BevelButtonListe": ("Liste Nb 1ers", "check box"),
    "PushButtonPressPapBOrg": (f"Copier : {_CONVERSION} 1", "push button"),
    "PushButtonPressPapBDest": (f"Copier : {_CONVERSION} 2", "push button"),
    "PushButtonPressPapLettr": (f"Copier : {_WORDS}", "push button"),
    "PushButtonPressPapPrem": ("Copier : Décomposition en Nombres Premiers", "push button"),
    "PushButtonFichier": ("Changer Fichier", "push button"),
    "EditFieldFin": ("Calculer Nbres 1ers jusqu'à :", "text"),
    "EditFieldAffDu": ("Afficher Nbres 1ers du", "text"),
    "EditFieldAffAu": ("Afficher Nbres 1ers du … au", "text"),
    "EditFieldNbNbresLigne": (
        "Entrer ici la quantité de nombres premiers que vous voulez par ligne dans le fichier",
        "text",
    ),
    "StaticTextNbNbre1ers": ("166 nombres premiers", "label"),
    "TxtAreaListeNbres1ers": ("Liste des Nombres Premiers", "text"),
    "PushButtDecomposer": ("Décomposer", "push button"),
}

# Where Tab goes, in its order, before it begins again.
TAB_ORDER = [
    "EditFieldNbre",
    "EditFieldBaseOrg",
    "EditFieldMonnaies",
    "EditFieldMonnaie",
    "EditFieldCentimes",
    "EditFieldCentime",
    "CheckBoxMajusc",
    "PopupMenuLg",
    "CheckBoxTrUnion",
]

WINDOW_TITLE = "Tessarolyne"

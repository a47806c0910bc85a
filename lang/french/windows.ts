<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>docbench::HelpBrowser</name>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Rechercher (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>The help file %1 can&apos;t be found. Please check the installation.</source>
        <translation>Le fichier d’aide %1 est introuvable. Veuillez vérifier l’installation.</translation>
    </message>
</context>
<context>
    <name>docbench::PasswordDialog</name>
    <message>
        <source>&amp;Keep in the keyring</source>
        <translation>&amp;Conserver dans le trousseau de clés</translation>
    </message>
    <message>
        <source>%1 did not accept the user and password for &quot;%2&quot;. Please try again.</source>
        <translation>%1 n’a pas accepté l’utilisateur et le mot de passe pour « %2 ». Veuillez réessayer.</translation>
    </message>
    <message>
        <source>%1 wants a user and a password for &quot;%2&quot;.</source>
        <translation>%1 demande un utilisateur et un mot de passe pour « %2 ».</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
</context>
<context>
    <name>docbench::URLFileOpen</name>
    <message>
        <source>This is no address of a web folder. Type one that begins with https:// or http://, such as https://server/folder/.</source>
        <translation>Ce n’est pas l’adresse d’un dossier web. Entrez-en une qui commence par https:// ou http://, par exemple https://serveur/dossier/.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Folder above (Alt+Up)</source>
        <translation>Dossier parent (Alt+Haut)</translation>
    </message>
    <message>
        <source>Folder above</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichier</translation>
    </message>
    <message>
        <source>Web folders can&apos;t be reached: the document library is not loaded.</source>
        <translation>Les dossiers web sont inaccessibles : la bibliothèque de documents n’est pas chargée.</translation>
    </message>
</context>
<context>
    <name>docbench::WebAddress</name>
    <message>
        <source>Type the address without the password; you will be asked for it. Addresses are remembered and listed, and a password is not for that.</source>
        <translation>Entrez l’adresse sans le mot de passe ; il vous sera demandé. Les adresses sont mémorisées et listées, un mot de passe n’y a pas sa place.</translation>
    </message>
</context>
<context>
    <name>docbench::setup</name>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>The language changes when the program starts again.</source>
        <translation>La langue change au prochain démarrage du programme.</translation>
    </message>
</context>
</TS>

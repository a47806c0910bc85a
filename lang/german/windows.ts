<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>docbench::HelpBrowser</name>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>The help file %1 can&apos;t be found. Please check the installation.</source>
        <translation>Die Hilfedatei %1 wurde nicht gefunden. Bitte prüfen Sie die Installation.</translation>
    </message>
</context>
<context>
    <name>docbench::PasswordDialog</name>
    <message>
        <source>&amp;Keep in the keyring</source>
        <translation>Im &amp;Schlüsselbund aufbewahren</translation>
    </message>
    <message>
        <source>%1 did not accept the user and password for &quot;%2&quot;. Please try again.</source>
        <translation>%1 hat Benutzer und Passwort für „%2“ nicht angenommen. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 wants a user and a password for &quot;%2&quot;.</source>
        <translation>%1 verlangt für „%2“ einen Benutzer und ein Passwort.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
</context>
<context>
    <name>docbench::URLFileOpen</name>
    <message>
        <source>This is no address of a web folder. Type one that begins with https:// or http://, such as https://server/folder/.</source>
        <translation>Das ist keine Adresse eines Webordners. Geben Sie eine Adresse ein, die mit https:// oder http:// beginnt, etwa https://server/ordner/.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Folder above (Alt+Up)</source>
        <translation>Übergeordneter Ordner (Alt+Nach oben)</translation>
    </message>
    <message>
        <source>Folder above</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Web folders can&apos;t be reached: the document library is not loaded.</source>
        <translation>Webordner sind nicht erreichbar: Die Dokumentbibliothek ist nicht geladen.</translation>
    </message>
</context>
<context>
    <name>docbench::WebAddress</name>
    <message>
        <source>Type the address without the password; you will be asked for it. Addresses are remembered and listed, and a password is not for that.</source>
        <translation>Geben Sie die Adresse ohne das Passwort ein; Sie werden danach gefragt. Adressen werden gemerkt und aufgelistet, und ein Passwort gehört nicht dorthin.</translation>
    </message>
</context>
<context>
    <name>docbench::setup</name>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>The language changes when the program starts again.</source>
        <translation>Die Sprache wechselt, wenn das Programm neu startet.</translation>
    </message>
</context>
</TS>

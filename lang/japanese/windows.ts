<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>docbench::HelpBrowser</name>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>The help file %1 can&apos;t be found. Please check the installation.</source>
        <translation>ヘルプファイル %1 が見つかりません。インストールを確認してください。</translation>
    </message>
</context>
<context>
    <name>docbench::PasswordDialog</name>
    <message>
        <source>&amp;Keep in the keyring</source>
        <translation>キーリングに保存(&amp;K)</translation>
    </message>
    <message>
        <source>%1 did not accept the user and password for &quot;%2&quot;. Please try again.</source>
        <translation>%1 は「%2」のユーザーとパスワードを受け付けませんでした。もう一度入力してください。</translation>
    </message>
    <message>
        <source>%1 wants a user and a password for &quot;%2&quot;.</source>
        <translation>%1 は「%2」のユーザーとパスワードを要求しています。</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
</context>
<context>
    <name>docbench::URLFileOpen</name>
    <message>
        <source>This is no address of a web folder. Type one that begins with https:// or http://, such as https://server/folder/.</source>
        <translation>これは Web フォルダーのアドレスではありません。https:// または http:// で始まるアドレス (例: https://server/folder/) を入力してください。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Folder above (Alt+Up)</source>
        <translation>上のフォルダー (Alt+↑)</translation>
    </message>
    <message>
        <source>Folder above</source>
        <translation>上のフォルダー</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Web folders can&apos;t be reached: the document library is not loaded.</source>
        <translation>Web フォルダーに接続できません: ドキュメントライブラリが読み込まれていません。</translation>
    </message>
</context>
<context>
    <name>docbench::WebAddress</name>
    <message>
        <source>Type the address without the password; you will be asked for it. Addresses are remembered and listed, and a password is not for that.</source>
        <translation>パスワードを含めずにアドレスを入力してください。パスワードは後で入力を求められます。アドレスは記憶されて一覧に表示されるため、パスワードを含めることはできません。</translation>
    </message>
</context>
<context>
    <name>docbench::setup</name>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップに従う</translation>
    </message>
    <message>
        <source>The language changes when the program starts again.</source>
        <translation>言語は、プログラムを再起動すると切り替わります。</translation>
    </message>
</context>
</TS>

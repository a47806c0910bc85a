<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>docbench::HelpBrowser</name>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>搜索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>The help file %1 can&apos;t be found. Please check the installation.</source>
        <translation>找不到帮助文件 %1。请检查安装。</translation>
    </message>
</context>
<context>
    <name>docbench::PasswordDialog</name>
    <message>
        <source>&amp;Keep in the keyring</source>
        <translation>保存在密钥环中(&amp;K)</translation>
    </message>
    <message>
        <source>%1 did not accept the user and password for &quot;%2&quot;. Please try again.</source>
        <translation>%1 未接受“%2”的用户和密码。请重试。</translation>
    </message>
    <message>
        <source>%1 wants a user and a password for &quot;%2&quot;.</source>
        <translation>%1 要求提供“%2”的用户和密码。</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
</context>
<context>
    <name>docbench::URLFileOpen</name>
    <message>
        <source>This is no address of a web folder. Type one that begins with https:// or http://, such as https://server/folder/.</source>
        <translation>这不是 Web 文件夹的地址。请输入以 https:// 或 http:// 开头的地址，例如 https://server/folder/。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Folder above (Alt+Up)</source>
        <translation>上级文件夹 (Alt+向上键)</translation>
    </message>
    <message>
        <source>Folder above</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Web folders can&apos;t be reached: the document library is not loaded.</source>
        <translation>无法访问 Web 文件夹：文档库未加载。</translation>
    </message>
</context>
<context>
    <name>docbench::WebAddress</name>
    <message>
        <source>Type the address without the password; you will be asked for it. Addresses are remembered and listed, and a password is not for that.</source>
        <translation>请输入不含密码的地址；稍后会要求您输入密码。地址会被记住并列出，密码不应出现在其中。</translation>
    </message>
</context>
<context>
    <name>docbench::setup</name>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>The language changes when the program starts again.</source>
        <translation>语言将在程序重新启动后更改。</translation>
    </message>
</context>
</TS>

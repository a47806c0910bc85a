<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="tessadocres-1">
        <source></source>
        <extracomment>ReplaceButton. Button of the find and replace form that replaces the hit; in the copy pane, the button that opens this form.</extracomment>
        <translation>替换(&amp;P)</translation>
    </message>
    <message id="tessadocres-2">
        <source></source>
        <extracomment>DocumentToFind. Label of the field with the document whose uses are looked for.</extracomment>
        <translation>文档</translation>
    </message>
    <message id="tessadocres-3">
        <source></source>
        <extracomment>CopyReferencesToo. Check box of the copy pane: copy the references of the document as well.</extracomment>
        <translation>复制引用(&amp;F)</translation>
    </message>
    <message id="tessadocres-4">
        <source></source>
        <extracomment>ClearAll. Button of the copy pane while all rows are ticked. The caption is the button's state: it must differ from "Select all".</extracomment>
        <translation>全部清除</translation>
    </message>
    <message id="tessadocres-5">
        <source></source>
        <extracomment>CopyWord. Menu entry of the tree, title of a column, state of a parent row that is copied, and label (a colon follows). Compared with the state of a row: it must differ from "Update".</extracomment>
        <translation>复制</translation>
    </message>
    <message id="tessadocres-6">
        <source></source>
        <extracomment>Path. Title of the first column of a list until its long form is set.</extracomment>
        <translation>路径</translation>
    </message>
    <message id="tessadocres-7">
        <source></source>
        <extracomment>Refresh. Button that reads a list again.</extracomment>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message id="tessadocres-8">
        <source></source>
        <extracomment>FileNameColumn. Title of the column of the copy list with the name of the file.</extracomment>
        <translation>文件名</translation>
    </message>
    <message id="tessadocres-9">
        <source></source>
        <extracomment>ParentDocuments. Check box and frame of the copy pane around the list of documents that use the source.</extracomment>
        <translation>父文档</translation>
    </message>
    <message id="tessadocres-10">
        <source></source>
        <extracomment>Browse. Button that opens a file or folder dialog.</extracomment>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message id="tessadocres-11">
        <source></source>
        <extracomment>AsSuffix. Option of the copy pane: the text goes behind the names of the copies.</extracomment>
        <translation>作为后缀(&amp;U)</translation>
    </message>
    <message id="tessadocres-12">
        <source></source>
        <extracomment>AsPrefix. Option of the copy pane: the text goes in front of the names of the copies.</extracomment>
        <translation>作为前缀(&amp;X)</translation>
    </message>
    <message id="tessadocres-13">
        <source></source>
        <extracomment>TargetFolder. Label in the copy pane; a colon follows.</extracomment>
        <translation>目标文件夹</translation>
    </message>
    <message id="tessadocres-14">
        <source></source>
        <extracomment>NewName. Label in the rename and copy panes; a colon follows.</extracomment>
        <translation>新名称</translation>
    </message>
    <message id="tessadocres-15">
        <source></source>
        <extracomment>Apply. Button that carries out what the pane shows.</extracomment>
        <translation>应用(&amp;A)</translation>
    </message>
    <message id="tessadocres-16">
        <source></source>
        <extracomment>Reset. Button that empties the list of documents found, or drops edits.</extracomment>
        <translation>重置(&amp;R)</translation>
    </message>
    <message id="tessadocres-17">
        <source></source>
        <extracomment>FindAgain. Caption of a search button after its first search. Captions are state: it must differ from "Stop".</extracomment>
        <translation>再次查找</translation>
    </message>
    <message id="tessadocres-18">
        <source></source>
        <extracomment>LookIn. Label of a field with folders.</extracomment>
        <translation>查找范围</translation>
    </message>
    <message id="tessadocres-19">
        <source></source>
        <extracomment>UpdateWord. Title of the column with the ticks, and state of a parent row that is brought up to date. It must differ from "Copy".</extracomment>
        <translation>更新</translation>
    </message>
    <message id="tessadocres-20">
        <source></source>
        <extracomment>UsedBy. Heading of a list of documents that use another.</extracomment>
        <translation>使用者</translation>
    </message>
    <message id="tessadocres-21">
        <source></source>
        <extracomment>Relation. Title of the column that says how a document is used.</extracomment>
        <translation>关系</translation>
    </message>
    <message id="tessadocres-22">
        <source></source>
        <extracomment>ReferenceTable. Title of the column that says in which of its two tables a document holds the reference, by number.</extracomment>
        <translation>表</translation>
    </message>
    <message id="tessadocres-23">
        <source></source>
        <extracomment>ReferenceNumber. Title of the column with the number of the reference in its table.</extracomment>
        <translation>编号</translation>
    </message>
    <message id="tessadocres-25">
        <source></source>
        <extracomment>MenuOpen. Menu entry that opens the document in the CAD program.</extracomment>
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="tessadocres-26">
        <source></source>
        <extracomment>MenuExport. Menu entry that writes the list to a spreadsheet.</extracomment>
        <translation>导出列表(&amp;E)</translation>
    </message>
    <message id="tessadocres-27">
        <source></source>
        <extracomment>DocumentColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>文档</translation>
    </message>
    <message id="tessadocres-28">
        <source></source>
        <extracomment>FileColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>文件</translation>
    </message>
    <message id="tessadocres-29">
        <source></source>
        <extracomment>SourcePath. Title of the copy list's column of sources when it shows whole paths.</extracomment>
        <translation>源路径</translation>
    </message>
    <message id="tessadocres-30">
        <source></source>
        <extracomment>TargetPath. Title of a column of targets when it shows whole paths.</extracomment>
        <translation>目标路径</translation>
    </message>
    <message id="tessadocres-31">
        <source></source>
        <extracomment>HolderName. Title of the column of documents that use the target when it shows file names.</extracomment>
        <translation>使用位置</translation>
    </message>
    <message id="tessadocres-32">
        <source></source>
        <extracomment>TargetTip. Tool tip of the target of a parent document.</extracomment>
        <translation>双击以选择其他目标。</translation>
    </message>
    <message id="tessadocres-33">
        <source></source>
        <extracomment>DefaultPrefix. What the copy pane puts in front of names at first; the blank at its end is part of it.</extracomment>
        <translation>副本 </translation>
    </message>
    <message id="tessadocres-34">
        <source></source>
        <extracomment>CopyTargetWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>副本的位置</translation>
    </message>
    <message id="tessadocres-35">
        <source></source>
        <extracomment>PartFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>零件 (*.tfmprt, *.prt)|*.tfmprt;*.prt</translation>
    </message>
    <message id="tessadocres-36">
        <source></source>
        <extracomment>AssemblyFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>装配体 (*.tfmasm, *.asm)|*.tfmasm;*.asm</translation>
    </message>
    <message id="tessadocres-37">
        <source></source>
        <extracomment>ChooseDocument. Title of the dialogs that choose a target file or the replacement of a missing file.</extracomment>
        <translation>选择文档</translation>
    </message>
    <message id="tessadocres-38">
        <source></source>
        <extracomment>ParentReadOnly. Box when the row of a read-only parent document is ticked.</extracomment>
        <translation>此文档为只读，因此无法更新。请先取消其写保护。</translation>
    </message>
    <message id="tessadocres-39">
        <source></source>
        <extracomment>DrawingFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>工程图 (*.tfmdrw, *.drw)|*.tfmdrw;*.drw</translation>
    </message>
    <message id="tessadocres-40">
        <source></source>
        <extracomment>Close. Button that closes a form.</extracomment>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message id="tessadocres-41">
        <source></source>
        <extracomment>ExportDone. Status after an export. Value: number of lines.</extracomment>
        <translation>列表已写入电子表格，行数：%s</translation>
    </message>
    <message id="tessadocres-42">
        <source></source>
        <extracomment>ExportFailed. Status after an export that failed.</extracomment>
        <translation>列表无法写入电子表格。</translation>
    </message>
    <message id="tessadocres-43">
        <source></source>
        <extracomment>ExportEmpty. Box when an empty list is exported.</extracomment>
        <translation>列表为空，没有可导出的内容。</translation>
    </message>
    <message id="tessadocres-44">
        <source></source>
        <extracomment>Status. Title of a column in an export, and suggested name of a property.</extracomment>
        <translation>状态</translation>
    </message>
    <message id="tessadocres-45">
        <source></source>
        <extracomment>TickedYes. In an export: the row is ticked.</extracomment>
        <translation>是</translation>
    </message>
    <message id="tessadocres-46">
        <source></source>
        <extracomment>TickedNo. In an export: the row is not ticked.</extracomment>
        <translation>否</translation>
    </message>
    <message id="tessadocres-47">
        <source></source>
        <extracomment>Ok. Button.</extracomment>
        <translation>确定</translation>
    </message>
    <message id="tessadocres-48">
        <source></source>
        <extracomment>RowMissing. Box when a missing document of a list is opened.</extracomment>
        <translation>此文档缺失，无法打开。</translation>
    </message>
    <message id="tessadocres-49">
        <source></source>
        <extracomment>SelectAll. Button of the copy pane while not all rows are ticked. The caption is the button's state: it must differ from "Clear all".</extracomment>
        <translation>全部选择</translation>
    </message>
    <message id="tessadocres-51">
        <source></source>
        <extracomment>FolderNotMade. Status, box and tool tip during a copy. Value: the folder.</extracomment>
        <translation>无法创建文件夹 %s。请检查您是否有权在该处写入。</translation>
    </message>
    <message id="tessadocres-52">
        <source></source>
        <extracomment>RenameLoadFailed. Box of the rename pane. Values: document, reason.</extracomment>
        <translation>无法为重命名准备文档 %s。%s</translation>
    </message>
    <message id="tessadocres-53">
        <source></source>
        <extracomment>Stop. Caption of a search button while it searches. Captions are state: it must differ from "Find now" and "Find again".</extracomment>
        <translation>停止</translation>
    </message>
    <message id="tessadocres-55">
        <source></source>
        <extracomment>NotFound. Mark of something that is not there.</extracomment>
        <translation>未找到</translation>
    </message>
    <message id="tessadocres-57">
        <source></source>
        <extracomment>NoTargetFile. Box when a copy is started without a target.</extracomment>
        <translation>请输入副本的目标文件。</translation>
    </message>
    <message id="tessadocres-58">
        <source></source>
        <extracomment>TargetOfOtherType. Box when the target's extension is of another type.</extracomment>
        <translation>副本的类型必须与源文档相同：零件、装配体或工程图。</translation>
    </message>
    <message id="tessadocres-59">
        <source></source>
        <extracomment>SourceMissing. Question with the buttons Yes, No, No to all and Cancel before a copy. Value: the document.</extracomment>
        <translation>文档 %s 缺失。是否要选择另一个文档来代替它？</translation>
    </message>
    <message id="tessadocres-60">
        <source></source>
        <extracomment>Working. Text of a progress label.</extracomment>
        <translation>正在处理...</translation>
    </message>
    <message id="tessadocres-61">
        <source></source>
        <extracomment>Ready. Text of a progress label at the end.</extracomment>
        <translation>就绪</translation>
    </message>
    <message id="tessadocres-62">
        <source></source>
        <extracomment>CopyCancelled. Status after Cancel at a question. Files copied so far stay.</extracomment>
        <translation>复制已取消。</translation>
    </message>
    <message id="tessadocres-63">
        <source></source>
        <extracomment>CopyNotMade. Tool tip of a row that was left out of a copy.</extracomment>
        <translation>未复制。</translation>
    </message>
    <message id="tessadocres-64">
        <source></source>
        <extracomment>TargetKept. Tool tip of a row whose target exists and was not to be overwritten.</extracomment>
        <translation>未复制：保留了现有文件。</translation>
    </message>
    <message id="tessadocres-65">
        <source></source>
        <extracomment>RowNotCopied. Tool tip of a row that was passed over.</extracomment>
        <translation>未复制：该行未勾选，或其文档缺失。</translation>
    </message>
    <message id="tessadocres-66">
        <source></source>
        <extracomment>CopyDone. Status at the end of a copy. Values: number of rows copied, number of rows failed.</extracomment>
        <translation>已复制：%s，失败：%s</translation>
    </message>
    <message id="tessadocres-68">
        <source></source>
        <extracomment>CopyNotOpened. Question. Value: the copy.</extracomment>
        <translation>无法更新副本 %s 的引用，因为副本或其源文档无法打开。是否继续处理其他文档？</translation>
    </message>
    <message id="tessadocres-69">
        <source></source>
        <extracomment>NotUpdatedTip. Tool tip of a row after a failure. Value: reason.</extracomment>
        <translation>未更新：%s</translation>
    </message>
    <message id="tessadocres-70">
        <source></source>
        <extracomment>NotSaved. Question. Values: document, reason.</extracomment>
        <translation>无法保存文档 %s。%s 是否继续处理其他文档？</translation>
    </message>
    <message id="tessadocres-72">
        <source></source>
        <extracomment>UpdatingReferences. Status. Value: the document.</extracomment>
        <translation>正在更新 %s 中的引用</translation>
    </message>
    <message id="tessadocres-73">
        <source></source>
        <extracomment>NotOpened. Question. Values: document, reason.</extracomment>
        <translation>无法打开文档 %s 以更新其引用。%s 是否继续处理其他文档？</translation>
    </message>
    <message id="tessadocres-74">
        <source></source>
        <extracomment>OverwriteQuestion. Question with the buttons Yes, No and Cancel. Value: the file.</extracomment>
        <translation>文件 %s 已存在。是否要覆盖它？</translation>
    </message>
    <message id="tessadocres-75">
        <source></source>
        <extracomment>SaveChanges. Button of the editors that writes the pending edits.</extracomment>
        <translation>保存更改(&amp;S)</translation>
    </message>
    <message id="tessadocres-76">
        <source></source>
        <extracomment>HoldersFound. Status after a search for documents that use the source. Value: number of rows.</extracomment>
        <translation>找到的引用：%s</translation>
    </message>
    <message id="tessadocres-77">
        <source></source>
        <extracomment>ParentRowTip. Tool tip of a row of the parent list.</extracomment>
        <translation>单击复选框以选择如何处理此文档：保持不变、更新，或（对于工程图）复制。</translation>
    </message>
    <message id="tessadocres-78">
        <source></source>
        <extracomment>ReadOnlyMark. Mark of a read-only document, put in front of its name in one list and behind it in another: a blank at both ends.</extracomment>
        <translation> (只读) </translation>
    </message>
    <message id="tessadocres-79">
        <source></source>
        <extracomment>Help. Toolbar button, menu entry and button of the description strip.</extracomment>
        <translation>帮助</translation>
    </message>
    <message id="tessadocres-80">
        <source></source>
        <extracomment>SearchScope. Title of the form that says where and for what to search.</extracomment>
        <translation>搜索范围</translation>
    </message>
    <message id="tessadocres-81">
        <source></source>
        <extracomment>PropertyName. Title of the column with the names of properties.</extracomment>
        <translation>名称</translation>
    </message>
    <message id="tessadocres-82">
        <source></source>
        <extracomment>PropertyValue. Title of the column with the values of properties.</extracomment>
        <translation>值</translation>
    </message>
    <message id="tessadocres-83">
        <source></source>
        <extracomment>SearchScopeFrame. Frame of the search scope form.</extracomment>
        <translation>查找范围</translation>
    </message>
    <message id="tessadocres-84">
        <source></source>
        <extracomment>FindMirrored. Check box: find parts that mirror the document.</extracomment>
        <translation>镜像零件(&amp;M)</translation>
    </message>
    <message id="tessadocres-85">
        <source></source>
        <extracomment>FolderLists. Button that drops down the named folder lists.</extracomment>
        <translation>文件夹列表(&amp;I)</translation>
    </message>
    <message id="tessadocres-86">
        <source></source>
        <extracomment>RecentFolders. Heading of a list of folders.</extracomment>
        <translation>最近使用的文件夹</translation>
    </message>
    <message id="tessadocres-87">
        <source></source>
        <extracomment>FindReferences. Check box: find plain references to the document.</extracomment>
        <translation>引用(&amp;F)</translation>
    </message>
    <message id="tessadocres-88">
        <source></source>
        <extracomment>FindInContext. Check box: find parts that refer to the assembly in context.</extracomment>
        <translation>关联引用(&amp;X)</translation>
    </message>
    <message id="tessadocres-89">
        <source></source>
        <extracomment>Cancel. Button.</extracomment>
        <translation>取消</translation>
    </message>
    <message id="tessadocres-90">
        <source></source>
        <extracomment>LookInWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>查找范围</translation>
    </message>
    <message id="tessadocres-91">
        <source></source>
        <extracomment>ChooseFolder. Title of the folder dialog. Value: what the folder is for.</extracomment>
        <translation>选择文件夹：%s</translation>
    </message>
    <message id="tessadocres-92">
        <source></source>
        <extracomment>BecomesMark. Stands between an old and a new name that is not saved yet; never empty.</extracomment>
        <translation> -&gt; </translation>
    </message>
    <message id="tessadocres-93">
        <source></source>
        <extracomment>ConfigurationNameEmpty. Box when a configuration is given an empty name.</extracomment>
        <translation>配置必须有名称。</translation>
    </message>
    <message id="tessadocres-94">
        <source></source>
        <extracomment>ConfigurationNameTaken. Box when a configuration is given a name that another one has.</extracomment>
        <translation>已存在同名的其他配置。请选择不同的名称。</translation>
    </message>
    <message id="tessadocres-95">
        <source></source>
        <extracomment>ConfigurationStays. Box when a configuration that must stay is deleted.</extracomment>
        <translation>无法删除此配置。</translation>
    </message>
    <message id="tessadocres-96">
        <source></source>
        <extracomment>ConfigurationsNotSaved. Status after a save that failed.</extracomment>
        <translation>配置未能全部保存。</translation>
    </message>
    <message id="tessadocres-97">
        <source></source>
        <extracomment>ConfigurationsSaved. Status.</extracomment>
        <translation>配置已保存。</translation>
    </message>
    <message id="tessadocres-98">
        <source></source>
        <extracomment>ConfigurationSaveError. Box. Value: reason.</extracomment>
        <translation>无法保存配置。%s</translation>
    </message>
    <message id="tessadocres-99">
        <source></source>
        <extracomment>ConfigurationsOf. Root of the configuration tree. Value: title of the document.</extracomment>
        <translation>%s 的配置</translation>
    </message>
    <message id="tessadocres-100">
        <source></source>
        <extracomment>ConfigurationCount. Status. Value: their number.</extracomment>
        <translation>配置：%s</translation>
    </message>
    <message id="tessadocres-101">
        <source></source>
        <extracomment>ConfigurationsNotLoaded. Status. Value: the document.</extracomment>
        <translation>无法显示 %s 的配置。</translation>
    </message>
    <message id="tessadocres-103">
        <source></source>
        <extracomment>MatchCase. Check box of the find and replace form.</extracomment>
        <translation>区分大小写(&amp;C)</translation>
    </message>
    <message id="tessadocres-104">
        <source></source>
        <extracomment>FindNext. Button of the find and replace form.</extracomment>
        <translation>查找下一个(&amp;F)</translation>
    </message>
    <message id="tessadocres-105">
        <source></source>
        <extracomment>ReplaceAll. Button of the find and replace form.</extracomment>
        <translation>全部替换(&amp;A)</translation>
    </message>
    <message id="tessadocres-106">
        <source></source>
        <extracomment>ReplaceWith. Label in the find and replace form.</extracomment>
        <translation>替换为：</translation>
    </message>
    <message id="tessadocres-107">
        <source></source>
        <extracomment>FindWhat. Label in the find and replace form.</extracomment>
        <translation>查找：</translation>
    </message>
    <message id="tessadocres-108">
        <source></source>
        <extracomment>TextNotFound. Box of the find and replace form. Value: the text.</extracomment>
        <translation>未找到文本“%s”。</translation>
    </message>
    <message id="tessadocres-109">
        <source></source>
        <extracomment>FindUpwards. Check box of a find form: from the end to the start.</extracomment>
        <translation>向上搜索(&amp;U)</translation>
    </message>
    <message id="tessadocres-110">
        <source></source>
        <extracomment>HyperlinksSaved. Status.</extracomment>
        <translation>超链接已保存。</translation>
    </message>
    <message id="tessadocres-111">
        <source></source>
        <extracomment>HyperlinksNotSaved. Status after a save that failed.</extracomment>
        <translation>超链接未能全部保存。</translation>
    </message>
    <message id="tessadocres-113">
        <source></source>
        <extracomment>MenuOpenFile. Menu entry.</extracomment>
        <translation>打开文档(&amp;O)...</translation>
    </message>
    <message id="tessadocres-114">
        <source></source>
        <extracomment>HyperlinksNotLoaded. Status. Value: the document.</extracomment>
        <translation>无法显示 %s 的超链接。</translation>
    </message>
    <message id="tessadocres-115">
        <source></source>
        <extracomment>HyperlinkLoadError. Box. Value: reason.</extracomment>
        <translation>无法读取超链接。%s</translation>
    </message>
    <message id="tessadocres-116">
        <source></source>
        <extracomment>Size. Title of a column.</extracomment>
        <translation>大小</translation>
    </message>
    <message id="tessadocres-117">
        <source></source>
        <extracomment>Type. Title of a column: the type of a file or property, or the table of a reference.</extracomment>
        <translation>类型</translation>
    </message>
    <message id="tessadocres-118">
        <source></source>
        <extracomment>LastSaved. Label in the property pane and title of a column.</extracomment>
        <translation>上次保存</translation>
    </message>
    <message id="tessadocres-119">
        <source></source>
        <extracomment>Attributes. Title of a column with the letters of the file's attributes.</extracomment>
        <translation>文件属性</translation>
    </message>
    <message id="tessadocres-120">
        <source></source>
        <extracomment>ReferenceListError. Box. Value: reason.</extracomment>
        <translation>无法列出引用。%s</translation>
    </message>
    <message id="tessadocres-121">
        <source></source>
        <extracomment>DocumentNotReadable. Box. Value: the document.</extracomment>
        <translation>无法读取文档 %s。</translation>
    </message>
    <message id="tessadocres-122">
        <source></source>
        <extracomment>AppTitle. Name of the program: title of all boxes.</extracomment>
        <translation>Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-123">
        <source></source>
        <extracomment>NoToAll. Button of a question with up to four buttons.</extracomment>
        <translation>全部否(&amp;A)</translation>
    </message>
    <message id="tessadocres-124">
        <source></source>
        <extracomment>No. Button of a question with up to four buttons.</extracomment>
        <translation>否(&amp;N)</translation>
    </message>
    <message id="tessadocres-125">
        <source></source>
        <extracomment>Yes. Button of a question with up to four buttons.</extracomment>
        <translation>是(&amp;Y)</translation>
    </message>
    <message id="tessadocres-126">
        <source></source>
        <extracomment>Preview. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>预览</translation>
    </message>
    <message id="tessadocres-127">
        <source></source>
        <extracomment>Properties. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>属性</translation>
    </message>
    <message id="tessadocres-128">
        <source></source>
        <extracomment>References. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>引用</translation>
    </message>
    <message id="tessadocres-129">
        <source></source>
        <extracomment>WhereUsed. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>何处使用</translation>
    </message>
    <message id="tessadocres-130">
        <source></source>
        <extracomment>Search. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>搜索</translation>
    </message>
    <message id="tessadocres-131">
        <source></source>
        <extracomment>Configurations. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>配置</translation>
    </message>
    <message id="tessadocres-132">
        <source></source>
        <extracomment>Hyperlinks. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>超链接</translation>
    </message>
    <message id="tessadocres-133">
        <source></source>
        <extracomment>Setup. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>设置</translation>
    </message>
    <message id="tessadocres-134">
        <source></source>
        <extracomment>Options. Heading of a group of options.</extracomment>
        <translation>选项</translation>
    </message>
    <message id="tessadocres-135">
        <source></source>
        <extracomment>PreviewHelp. Description strip of the preview.</extracomment>
        <translation>显示文档中存储的图片。在树中单击各个文档，可并排查看它们的图片。</translation>
    </message>
    <message id="tessadocres-136">
        <source></source>
        <extracomment>PropertiesHelp. Description strip of the property pane.</extracomment>
        <translation>显示和更改文档自身的信息：摘要、自定义属性以及各个配置的属性。</translation>
    </message>
    <message id="tessadocres-137">
        <source></source>
        <extracomment>ReferencesHelp. Description strip of the reference pane.</extracomment>
        <translation>列出文档及其直接引用的内容，以及每个文件的大小、日期和文件属性。</translation>
    </message>
    <message id="tessadocres-138">
        <source></source>
        <extracomment>ConfigurationsHelp. Description strip of the configuration pane.</extracomment>
        <translation>重命名和删除文档的配置。保存之前不会写入任何内容。</translation>
    </message>
    <message id="tessadocres-139">
        <source></source>
        <extracomment>WhereUsedHelp. Description strip of the where-used pane.</extracomment>
        <translation>在您指定的文件夹中查找使用该文档的文档。</translation>
    </message>
    <message id="tessadocres-140">
        <source></source>
        <extracomment>SearchHelp. Description strip of the search pane.</extracomment>
        <translation>在您指定的文件夹中，按属性规则查找文档。</translation>
    </message>
    <message id="tessadocres-141">
        <source></source>
        <extracomment>RenameHelp. Description strip of the rename pane.</extracomment>
        <translation>重命名文档，或用另一个文档代替它，并更新使用它的文档。</translation>
    </message>
    <message id="tessadocres-142">
        <source></source>
        <extracomment>CopyHelp. Description strip of the copy pane.</extracomment>
        <translation>将文档连同其引用一起复制。副本之间相互引用；父文档也可以更新或复制。</translation>
    </message>
    <message id="tessadocres-143">
        <source></source>
        <extracomment>HyperlinksHelp. Description strip of the hyperlink pane.</extracomment>
        <translation>更改文档中存储的超链接。双击超链接即可打开。保存之前不会写入任何内容。</translation>
    </message>
    <message id="tessadocres-144">
        <source></source>
        <extracomment>SetupHelp. Description strip of the setup pane.</extracomment>
        <translation>设置选项，并管理搜索窗格所提供的命名文件夹列表。</translation>
    </message>
    <message id="tessadocres-145">
        <source></source>
        <extracomment>OpenFilter. Filter of the open dialog, as pairs of label and patterns.</extracomment>
        <translation>所有文档 (*.tfmasm, *.tfmprt, *.tfmdrw, *.asm, *.prt)|*.tfmasm;*.tfmprt;*.tfmdrw;*.asm;*.prt|装配体 (*.tfmasm, *.asm)|*.tfmasm;*.asm|零件 (*.tfmprt, *.prt)|*.tfmprt;*.prt|工程图 (*.tfmdrw)|*.tfmdrw</translation>
    </message>
    <message id="tessadocres-146">
        <source></source>
        <extracomment>OldFormat. Shown instead of a list, and as status.</extracomment>
        <translation>此文档的格式较旧。要在此处编辑，请先在 CAD 程序中保存一次。</translation>
    </message>
    <message id="tessadocres-147">
        <source></source>
        <extracomment>RelationDefault. How a document uses another: every case that has no word of its own. No path separator, no colon; differs from the two others.</extracomment>
        <translation>引用</translation>
    </message>
    <message id="tessadocres-148">
        <source></source>
        <extracomment>RelationAssembly. How a document uses another: a part that refers to an assembly. No path separator, no colon; differs from the two others.</extracomment>
        <translation>关联</translation>
    </message>
    <message id="tessadocres-149">
        <source></source>
        <extracomment>RelationPart. How a document uses another: a part that refers to a part. No path separator, no colon; differs from the two others.</extracomment>
        <translation>镜像</translation>
    </message>
    <message id="tessadocres-150">
        <source></source>
        <extracomment>Details. Button that shows the reason of a failure.</extracomment>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message id="tessadocres-151">
        <source></source>
        <extracomment>CurrentDocument. Label of the document that a pane shows.</extracomment>
        <translation>当前文档</translation>
    </message>
    <message id="tessadocres-152">
        <source></source>
        <extracomment>SummaryTab. Tab of the property pane.</extracomment>
        <translation>摘要</translation>
    </message>
    <message id="tessadocres-153">
        <source></source>
        <extracomment>CustomTab. Tab of the property pane.</extracomment>
        <translation>自定义</translation>
    </message>
    <message id="tessadocres-154">
        <source></source>
        <extracomment>ConfigurationTab. Tab of the property pane.</extracomment>
        <translation>配置特定</translation>
    </message>
    <message id="tessadocres-155">
        <source></source>
        <extracomment>NameField. Label of the field with a property's name.</extracomment>
        <translation>名称</translation>
    </message>
    <message id="tessadocres-156">
        <source></source>
        <extracomment>ValueField. Label of the field with a property's value.</extracomment>
        <translation>值</translation>
    </message>
    <message id="tessadocres-157">
        <source></source>
        <extracomment>Comments. Label in the property pane and property of a search rule.</extracomment>
        <translation>备注</translation>
    </message>
    <message id="tessadocres-158">
        <source></source>
        <extracomment>Keywords. Label in the property pane and property of a search rule.</extracomment>
        <translation>关键字</translation>
    </message>
    <message id="tessadocres-159">
        <source></source>
        <extracomment>Author. Label in the property pane and property of a search rule.</extracomment>
        <translation>作者</translation>
    </message>
    <message id="tessadocres-160">
        <source></source>
        <extracomment>Subject. Label in the property pane and property of a search rule.</extracomment>
        <translation>主题</translation>
    </message>
    <message id="tessadocres-161">
        <source></source>
        <extracomment>Title. Label in the property pane and property of a search rule.</extracomment>
        <translation>标题</translation>
    </message>
    <message id="tessadocres-162">
        <source></source>
        <extracomment>TypeField. Label of the field with a property's type.</extracomment>
        <translation>类型</translation>
    </message>
    <message id="tessadocres-163">
        <source></source>
        <extracomment>Change. Caption of the button that adds, when the name exists. Captions are state: it must differ from "Add".</extracomment>
        <translation>更改</translation>
    </message>
    <message id="tessadocres-164">
        <source></source>
        <extracomment>TypeText. Type of a property. The four types must differ.</extracomment>
        <translation>文本</translation>
    </message>
    <message id="tessadocres-165">
        <source></source>
        <extracomment>TypeDate. Type of a property. The four types must differ.</extracomment>
        <translation>日期</translation>
    </message>
    <message id="tessadocres-166">
        <source></source>
        <extracomment>TypeNumber. Type of a property. The four types must differ.</extracomment>
        <translation>数字</translation>
    </message>
    <message id="tessadocres-167">
        <source></source>
        <extracomment>TypeYesNo. Type of a property. The four types must differ.</extracomment>
        <translation>是或否</translation>
    </message>
    <message id="tessadocres-168">
        <source></source>
        <extracomment>ValueOfOtherType. Box when a property is added.</extracomment>
        <translation>值与类型不符。请按类型输入日期或数字，或选择其他类型。</translation>
    </message>
    <message id="tessadocres-169">
        <source></source>
        <extracomment>PropertiesNotOpened. Box. Value: the document.</extracomment>
        <translation>无法打开文档 %s，因此属性未写入。您的更改仍保留在窗格中。</translation>
    </message>
    <message id="tessadocres-170">
        <source></source>
        <extracomment>PropertiesWriteError. Box. Value: reason.</extracomment>
        <translation>无法写入属性。%s</translation>
    </message>
    <message id="tessadocres-171">
        <source></source>
        <extracomment>LeaveConfiguration. Question with the buttons Yes and No.</extracomment>
        <translation>配置的属性已更改。是否在继续之前写入？</translation>
    </message>
    <message id="tessadocres-172">
        <source></source>
        <extracomment>NoConfigurationProperties. Box.</extracomment>
        <translation>无法读取此配置的属性。</translation>
    </message>
    <message id="tessadocres-173">
        <source></source>
        <extracomment>ConfigurationPropertiesError. Box. Value: reason.</extracomment>
        <translation>无法显示配置的属性。%s</translation>
    </message>
    <message id="tessadocres-174">
        <source></source>
        <extracomment>PropertiesOf. Status. Value: the document.</extracomment>
        <translation>%s 的属性</translation>
    </message>
    <message id="tessadocres-175">
        <source></source>
        <extracomment>NoProperties. Box.</extracomment>
        <translation>此文档不含可读取的属性。</translation>
    </message>
    <message id="tessadocres-176">
        <source></source>
        <extracomment>NoPropertiesOf. Status. Value: the document.</extracomment>
        <translation>无法显示 %s 的属性。</translation>
    </message>
    <message id="tessadocres-177">
        <source></source>
        <extracomment>PropertiesLoadError. Box. Value: reason.</extracomment>
        <translation>无法读取属性。%s</translation>
    </message>
    <message id="tessadocres-178">
        <source></source>
        <extracomment>PropertiesShowError. Box of the property pane. Value: reason.</extracomment>
        <translation>无法显示文档。%s</translation>
    </message>
    <message id="tessadocres-179">
        <source></source>
        <extracomment>PropertyCreatedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>创建者</translation>
    </message>
    <message id="tessadocres-180">
        <source></source>
        <extracomment>PropertyCreatedOn. Suggested name of a property.</extracomment>
        <translation>创建日期</translation>
    </message>
    <message id="tessadocres-181">
        <source></source>
        <extracomment>PropertyDateCompleted. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>完成日期</translation>
    </message>
    <message id="tessadocres-182">
        <source></source>
        <extracomment>PropertyDepartment. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>部门</translation>
    </message>
    <message id="tessadocres-183">
        <source></source>
        <extracomment>PropertyDestination. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>目的地</translation>
    </message>
    <message id="tessadocres-184">
        <source></source>
        <extracomment>PropertyDisposition. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>处置</translation>
    </message>
    <message id="tessadocres-185">
        <source></source>
        <extracomment>PropertyDivision. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>分部</translation>
    </message>
    <message id="tessadocres-186">
        <source></source>
        <extracomment>PropertyDocumentNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>文档编号</translation>
    </message>
    <message id="tessadocres-187">
        <source></source>
        <extracomment>PropertyEditor. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>编辑</translation>
    </message>
    <message id="tessadocres-188">
        <source></source>
        <extracomment>PropertyForwardTo. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>转发至</translation>
    </message>
    <message id="tessadocres-189">
        <source></source>
        <extracomment>PropertyGroup. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>组</translation>
    </message>
    <message id="tessadocres-190">
        <source></source>
        <extracomment>PropertyLanguage. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>语言</translation>
    </message>
    <message id="tessadocres-191">
        <source></source>
        <extracomment>PropertyMailstop. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>邮件站</translation>
    </message>
    <message id="tessadocres-192">
        <source></source>
        <extracomment>PropertyMatter. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>事项</translation>
    </message>
    <message id="tessadocres-193">
        <source></source>
        <extracomment>PropertyOffice. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>办公室</translation>
    </message>
    <message id="tessadocres-194">
        <source></source>
        <extracomment>PropertyOwner. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>所有者</translation>
    </message>
    <message id="tessadocres-195">
        <source></source>
        <extracomment>PropertyProject. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>项目</translation>
    </message>
    <message id="tessadocres-196">
        <source></source>
        <extracomment>PropertyPublisher. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>出版者</translation>
    </message>
    <message id="tessadocres-197">
        <source></source>
        <extracomment>PropertyPurpose. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>用途</translation>
    </message>
    <message id="tessadocres-198">
        <source></source>
        <extracomment>PropertyReceivedFrom. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>接收自</translation>
    </message>
    <message id="tessadocres-199">
        <source></source>
        <extracomment>PropertyRecordedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>记录者</translation>
    </message>
    <message id="tessadocres-200">
        <source></source>
        <extracomment>PropertyRecordedDate. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>记录日期</translation>
    </message>
    <message id="tessadocres-201">
        <source></source>
        <extracomment>PropertyReference. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>参考资料</translation>
    </message>
    <message id="tessadocres-202">
        <source></source>
        <extracomment>PropertySource. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>来源</translation>
    </message>
    <message id="tessadocres-203">
        <source></source>
        <extracomment>PropertyTelephoneNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>电话号码</translation>
    </message>
    <message id="tessadocres-204">
        <source></source>
        <extracomment>PropertyTypist. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>打字员</translation>
    </message>
    <message id="tessadocres-205">
        <source></source>
        <extracomment>Configuration. Label of the list of configurations in the property pane.</extracomment>
        <translation>配置</translation>
    </message>
    <message id="tessadocres-206">
        <source></source>
        <extracomment>Position. Title of the column with the position of a reference in its table.</extracomment>
        <translation>位置</translation>
    </message>
    <message id="tessadocres-207">
        <source></source>
        <extracomment>MenuRename. Menu entry of the tree and of the configurations, and label (a colon follows).</extracomment>
        <translation>重命名</translation>
    </message>
    <message id="tessadocres-208">
        <source></source>
        <extracomment>HolderPath. Title of the column of documents that use the target when it shows whole paths.</extracomment>
        <translation>使用位置（路径）</translation>
    </message>
    <message id="tessadocres-209">
        <source></source>
        <extracomment>ChooseReplacement. Title of the file dialog of a replacement.</extracomment>
        <translation>选择用来代替的文档</translation>
    </message>
    <message id="tessadocres-210">
        <source></source>
        <extracomment>DocumentsToUpdate. Check box and frame of the rename pane around the list of documents to update.</extracomment>
        <translation>使用该文档的文档</translation>
    </message>
    <message id="tessadocres-211">
        <source></source>
        <extracomment>TargetCollides. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>此处不能使用 %s。文档本身或其上级文档已有此名称，或者它引用了上级文档，或者无法检查其引用。</translation>
    </message>
    <message id="tessadocres-213">
        <source></source>
        <extracomment>TargetTypeUnknown. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s 不是文档名称。请为其加上零件、装配体或工程图的扩展名。</translation>
    </message>
    <message id="tessadocres-214">
        <source></source>
        <extracomment>TargetUnchanged. Box when a new name or a replacement is refused.</extracomment>
        <translation>这就是该文档本身。请选择其他文档。</translation>
    </message>
    <message id="tessadocres-216">
        <source></source>
        <extracomment>TargetTypeDiffers. Box when a new name or a replacement is refused.</extracomment>
        <translation>新文档的类型必须与旧文档相同。</translation>
    </message>
    <message id="tessadocres-218">
        <source></source>
        <extracomment>TargetMissing. Box when a replacement is refused. Value: its path.</extracomment>
        <translation>文档 %s 不存在。请选择一个存在的文档。</translation>
    </message>
    <message id="tessadocres-219">
        <source></source>
        <extracomment>TargetExists. Box when a new name is refused.</extracomment>
        <translation>已存在同名文件。请选择其他名称。</translation>
    </message>
    <message id="tessadocres-220">
        <source></source>
        <extracomment>TargetElsewhere. Box when a new name is refused.</extracomment>
        <translation>请输入不含文件夹的名称。文档只能在其所在的文件夹中重命名。</translation>
    </message>
    <message id="tessadocres-221">
        <source></source>
        <extracomment>Renamed. Result of a renaming.</extracomment>
        <translation>已重命名</translation>
    </message>
    <message id="tessadocres-222">
        <source></source>
        <extracomment>Replaced. Result of a replacement.</extracomment>
        <translation>已替换</translation>
    </message>
    <message id="tessadocres-223">
        <source></source>
        <extracomment>SearchingHolders. Status. Value: the folder.</extracomment>
        <translation>正在 %s 中查找引用</translation>
    </message>
    <message id="tessadocres-225">
        <source></source>
        <extracomment>HolderIsReplacement. Box of a replacement. Values: document, new reference.</extracomment>
        <translation>文档 %s 的文件名与其新引用 %s 相同。已取消其勾选；要跳过它继续，请再次单击“应用”。</translation>
    </message>
    <message id="tessadocres-227">
        <source></source>
        <extracomment>HolderHasNewName. Box of a renaming. Values: document, new name.</extracomment>
        <translation>文档 %s 与新名称 %s 同名。已取消其勾选；要跳过它继续，请再次单击“应用”。</translation>
    </message>
    <message id="tessadocres-229">
        <source></source>
        <extracomment>NotRenamed. Box. Value: the new path.</extracomment>
        <translation>无法将文档重命名为 %s。请检查您是否有权在其文件夹中写入。</translation>
    </message>
    <message id="tessadocres-230">
        <source></source>
        <extracomment>NothingChanged. Status after a renaming that failed.</extracomment>
        <translation>未做任何更改。</translation>
    </message>
    <message id="tessadocres-231">
        <source></source>
        <extracomment>RowFailedTip. Tool tip of a row. Value: reason.</extracomment>
        <translation>未更新：%s</translation>
    </message>
    <message id="tessadocres-232">
        <source></source>
        <extracomment>RowFailed. Box. Value: the document.</extracomment>
        <translation>无法更新文档 %s。它保留其旧引用。</translation>
    </message>
    <message id="tessadocres-233">
        <source></source>
        <extracomment>ExportedUpdated. In an export: the row was updated.</extracomment>
        <translation>已更新</translation>
    </message>
    <message id="tessadocres-234">
        <source></source>
        <extracomment>RowUpdatedTip. Tool tip of a row.</extracomment>
        <translation>已更新</translation>
    </message>
    <message id="tessadocres-235">
        <source></source>
        <extracomment>ExportedUnticked. In an export: the row is not ticked.</extracomment>
        <translation>否</translation>
    </message>
    <message id="tessadocres-236">
        <source></source>
        <extracomment>OpeningFrame. Frame of the setup pane.</extracomment>
        <translation>打开文档</translation>
    </message>
    <message id="tessadocres-237">
        <source></source>
        <extracomment>UseSearchRules. Check box of the setup pane.</extracomment>
        <translation>打开文档时使用搜索规则(&amp;S)</translation>
    </message>
    <message id="tessadocres-238">
        <source></source>
        <extracomment>DisplayFrame. Frame of the setup pane.</extracomment>
        <translation>显示</translation>
    </message>
    <message id="tessadocres-239">
        <source></source>
        <extracomment>ShowDescription. Check box of the setup pane.</extracomment>
        <translation>在窗格上方显示说明(&amp;D)</translation>
    </message>
    <message id="tessadocres-240">
        <source></source>
        <extracomment>FolderListsFrame. Frame of the setup pane.</extracomment>
        <translation>命名文件夹列表</translation>
    </message>
    <message id="tessadocres-241">
        <source></source>
        <extracomment>FolderListNames. Label of the list of names in the setup pane.</extracomment>
        <translation>文件夹列表</translation>
    </message>
    <message id="tessadocres-242">
        <source></source>
        <extracomment>FolderListName. Label of the field with the name of a folder list.</extracomment>
        <translation>名称</translation>
    </message>
    <message id="tessadocres-243">
        <source></source>
        <extracomment>FolderListFolders. Label of the folders of the list being edited.</extracomment>
        <translation>列表中的文件夹</translation>
    </message>
    <message id="tessadocres-244">
        <source></source>
        <extracomment>AddFolder. Button of the setup pane.</extracomment>
        <translation>添加文件夹(&amp;F)...</translation>
    </message>
    <message id="tessadocres-245">
        <source></source>
        <extracomment>RemoveFolder. Button of the setup pane.</extracomment>
        <translation>移除文件夹(&amp;M)</translation>
    </message>
    <message id="tessadocres-246">
        <source></source>
        <extracomment>DeleteFolderList. Button of the setup pane.</extracomment>
        <translation>删除列表(&amp;T)</translation>
    </message>
    <message id="tessadocres-247">
        <source></source>
        <extracomment>MenuDelete. Menu entry of a configuration.</extracomment>
        <translation>删除(&amp;D)</translation>
    </message>
    <message id="tessadocres-248">
        <source></source>
        <extracomment>MoveUp. Button of the setup pane.</extracomment>
        <translation>上移(&amp;U)</translation>
    </message>
    <message id="tessadocres-249">
        <source></source>
        <extracomment>MoveDown. Button of the setup pane.</extracomment>
        <translation>下移(&amp;N)</translation>
    </message>
    <message id="tessadocres-250">
        <source></source>
        <extracomment>ClearFolders. Button of the setup pane.</extracomment>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message id="tessadocres-251">
        <source></source>
        <extracomment>HeaderTip. Tool tip of a list.</extracomment>
        <translation>单击列标题可在文件名和完整路径之间切换。</translation>
    </message>
    <message id="tessadocres-252">
        <source></source>
        <extracomment>FolderListsTip. Tool tip of the button that drops down the folder lists.</extracomment>
        <translation>提供设置中的命名文件夹列表。</translation>
    </message>
    <message id="tessadocres-253">
        <source></source>
        <extracomment>LookInTip. Tool tip of a field with folders.</extracomment>
        <translation>文件夹，用“;”分隔。条目前加一个空格表示命名文件夹列表。</translation>
    </message>
    <message id="tessadocres-254">
        <source></source>
        <extracomment>DocumentToFindTip. Tool tip of the field with the document whose uses are looked for.</extracomment>
        <translation>文档的名称，可带或不带文件夹和扩展名。</translation>
    </message>
    <message id="tessadocres-255">
        <source></source>
        <extracomment>DropTip. Tool tip of a field.</extracomment>
        <translation>将文档或文件夹拖放到此处。</translation>
    </message>
    <message id="tessadocres-256">
        <source></source>
        <extracomment>OptionNotSaved. Box of the setup pane.</extracomment>
        <translation>无法保存该选项。请检查您是否有权写入您的设置。</translation>
    </message>
    <message id="tessadocres-257">
        <source></source>
        <extracomment>FolderListWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>文件夹列表</translation>
    </message>
    <message id="tessadocres-258">
        <source></source>
        <extracomment>FolderListNotDeleted. Box. Value: its name.</extracomment>
        <translation>无法删除文件夹列表 %s。</translation>
    </message>
    <message id="tessadocres-259">
        <source></source>
        <extracomment>FolderListNameWithBlank. Box of the setup pane.</extracomment>
        <translation>文件夹列表的名称不能包含空格。</translation>
    </message>
    <message id="tessadocres-260">
        <source></source>
        <extracomment>FolderListSaved. Status. Value: its name.</extracomment>
        <translation>文件夹列表 %s 已保存。</translation>
    </message>
    <message id="tessadocres-261">
        <source></source>
        <extracomment>AddFolderList. Caption of the setup pane's apply button for a new folder list; for an existing one it reads "Change".</extracomment>
        <translation>添加</translation>
    </message>
    <message id="tessadocres-262">
        <source></source>
        <extracomment>SearchFolderTitle. Title of the folder dialog of the search pane. Value: what the folder is for.</extracomment>
        <translation>文档搜索：%s</translation>
    </message>
    <message id="tessadocres-263">
        <source></source>
        <extracomment>RuleAndOption. Option of the search pane: the rule must hold as well.</extracomment>
        <translation>与(&amp;A)</translation>
    </message>
    <message id="tessadocres-264">
        <source></source>
        <extracomment>RuleOrOption. Option of the search pane: the rule may hold instead.</extracomment>
        <translation>或(&amp;R)</translation>
    </message>
    <message id="tessadocres-265">
        <source></source>
        <extracomment>RuleProperty. Title of the column of rules with the property.</extracomment>
        <translation>属性</translation>
    </message>
    <message id="tessadocres-266">
        <source></source>
        <extracomment>BrowseMore. Button that opens a file or folder dialog, beside another one with a different key.</extracomment>
        <translation>浏览(&amp;W)...</translation>
    </message>
    <message id="tessadocres-267">
        <source></source>
        <extracomment>RuleCondition. Title of the column of rules with the condition.</extracomment>
        <translation>条件</translation>
    </message>
    <message id="tessadocres-268">
        <source></source>
        <extracomment>RuleValue. Title of the column of rules with the value.</extracomment>
        <translation>值</translation>
    </message>
    <message id="tessadocres-269">
        <source></source>
        <extracomment>AddRule. Button of the search pane.</extracomment>
        <translation>添加规则(&amp;U)</translation>
    </message>
    <message id="tessadocres-270">
        <source></source>
        <extracomment>FindNow. Caption of a search button at first. Captions are state: it must differ from "Stop".</extracomment>
        <translation>开始查找</translation>
    </message>
    <message id="tessadocres-271">
        <source></source>
        <extracomment>DeleteRule. Button of the search pane.</extracomment>
        <translation>删除规则(&amp;L)</translation>
    </message>
    <message id="tessadocres-272">
        <source></source>
        <extracomment>NewSearch. Button of the search panes that empties all fields.</extracomment>
        <translation>新搜索(&amp;N)</translation>
    </message>
    <message id="tessadocres-273">
        <source></source>
        <extracomment>SaveSearch. Button of the search pane.</extracomment>
        <translation>保存搜索(&amp;H)...</translation>
    </message>
    <message id="tessadocres-274">
        <source></source>
        <extracomment>LoadSearch. Button of the search pane.</extracomment>
        <translation>载入搜索(&amp;D)...</translation>
    </message>
    <message id="tessadocres-275">
        <source></source>
        <extracomment>WithSubfolders. Check box: search the folders below as well.</extracomment>
        <translation>包含子文件夹(&amp;S)</translation>
    </message>
    <message id="tessadocres-276">
        <source></source>
        <extracomment>Rules. Frame of the search pane around the rules.</extracomment>
        <translation>规则</translation>
    </message>
    <message id="tessadocres-277">
        <source></source>
        <extracomment>Results. Heading of the documents found.</extracomment>
        <translation>结果</translation>
    </message>
    <message id="tessadocres-278">
        <source></source>
        <extracomment>RuleConnective. Title of the column of rules with the connective.</extracomment>
        <translation>连接</translation>
    </message>
    <message id="tessadocres-279">
        <source></source>
        <extracomment>RuleOr. Connective of a search rule; also written to saved searches. No double quotes.</extracomment>
        <translation>或</translation>
    </message>
    <message id="tessadocres-280">
        <source></source>
        <extracomment>RuleValueField. Label of the field with a rule's value.</extracomment>
        <translation>值</translation>
    </message>
    <message id="tessadocres-281">
        <source></source>
        <extracomment>RulePropertyField. Label of the field with a rule's property.</extracomment>
        <translation>属性</translation>
    </message>
    <message id="tessadocres-282">
        <source></source>
        <extracomment>RuleConditionField. Label of the field with a rule's condition.</extracomment>
        <translation>条件</translation>
    </message>
    <message id="tessadocres-283">
        <source></source>
        <extracomment>SearchFolders. Label of the folders of a search.</extracomment>
        <translation>文件夹</translation>
    </message>
    <message id="tessadocres-284">
        <source></source>
        <extracomment>CreatedColumn. Title of a column.</extracomment>
        <translation>创建时间</translation>
    </message>
    <message id="tessadocres-285">
        <source></source>
        <extracomment>ModifiedColumn. Title of a column.</extracomment>
        <translation>修改时间</translation>
    </message>
    <message id="tessadocres-286">
        <source></source>
        <extracomment>FolderColumn. Title of a column.</extracomment>
        <translation>文件夹</translation>
    </message>
    <message id="tessadocres-287">
        <source></source>
        <extracomment>SavedSearchFilter. Filter of the dialogs for saved searches, as pairs of label and patterns.</extracomment>
        <translation>保存的搜索 (*.tdbs)|*.tdbs|所有文件 (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-288">
        <source></source>
        <extracomment>SavedSearchExtension. Extension that a saved search gets when none is typed.</extracomment>
        <translation>tdbs</translation>
    </message>
    <message id="tessadocres-289">
        <source></source>
        <extracomment>SavedSearchError. Box.</extracomment>
        <translation>无法完整读取保存的搜索。请检查它是否为保存的搜索，以及您是否有权读取。</translation>
    </message>
    <message id="tessadocres-290">
        <source></source>
        <extracomment>SavedSearchExists. Question with the buttons OK and Cancel.</extracomment>
        <translation>已存在同名的保存的搜索。是否要覆盖它？</translation>
    </message>
    <message id="tessadocres-291">
        <source></source>
        <extracomment>SearchSaved. Status.</extracomment>
        <translation>搜索已保存。</translation>
    </message>
    <message id="tessadocres-292">
        <source></source>
        <extracomment>SearchLoaded. Status.</extracomment>
        <translation>搜索已载入。</translation>
    </message>
    <message id="tessadocres-293">
        <source></source>
        <extracomment>DocumentsFound. Status at the end of a search. Value: their number.</extracomment>
        <translation>找到的文档：%s</translation>
    </message>
    <message id="tessadocres-294">
        <source></source>
        <extracomment>SearchStopped. Text of a progress label.</extracomment>
        <translation>搜索已停止。</translation>
    </message>
    <message id="tessadocres-295">
        <source></source>
        <extracomment>SearchingFolder. Status. Value: the folder.</extracomment>
        <translation>正在搜索 %s</translation>
    </message>
    <message id="tessadocres-296">
        <source></source>
        <extracomment>IsExactly. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>是（完全匹配）</translation>
    </message>
    <message id="tessadocres-297">
        <source></source>
        <extracomment>IsNot. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>不是</translation>
    </message>
    <message id="tessadocres-298">
        <source></source>
        <extracomment>Contains. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>包含</translation>
    </message>
    <message id="tessadocres-299">
        <source></source>
        <extracomment>NotEqual. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>不等于</translation>
    </message>
    <message id="tessadocres-300">
        <source></source>
        <extracomment>IsYes. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>为“是”</translation>
    </message>
    <message id="tessadocres-301">
        <source></source>
        <extracomment>IsNo. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>为“否”</translation>
    </message>
    <message id="tessadocres-302">
        <source></source>
        <extracomment>LastSavedBy. Label in the property pane and property of a search rule.</extracomment>
        <translation>上次保存者</translation>
    </message>
    <message id="tessadocres-303">
        <source></source>
        <extracomment>PropertyLastSaved. Property of a search rule.</extracomment>
        <translation>上次保存时间</translation>
    </message>
    <message id="tessadocres-304">
        <source></source>
        <extracomment>Created. Label in the property pane and property of a search rule.</extracomment>
        <translation>创建时间</translation>
    </message>
    <message id="tessadocres-305">
        <source></source>
        <extracomment>NumberNeeded. Box. Value: the condition.</extracomment>
        <translation>条件“%s”需要数字。请输入一个数字。</translation>
    </message>
    <message id="tessadocres-306">
        <source></source>
        <extracomment>Loading. Text of a progress label.</extracomment>
        <translation>正在载入...</translation>
    </message>
    <message id="tessadocres-307">
        <source></source>
        <extracomment>NoPreview. Shown in place of the picture.</extracomment>
        <translation>此文档不含预览。</translation>
    </message>
    <message id="tessadocres-308">
        <source></source>
        <extracomment>ChooseFunction. Shown where there is no pane.</extracomment>
        <translation>请从图标栏或菜单中选择一项功能。</translation>
    </message>
    <message id="tessadocres-309">
        <source></source>
        <extracomment>OpenDocumentTitle. Title of the open dialog.</extracomment>
        <translation>打开文档</translation>
    </message>
    <message id="tessadocres-310">
        <source></source>
        <extracomment>NodeMissing. Status. Value: the document.</extracomment>
        <translation>文档 %s 缺失。</translation>
    </message>
    <message id="tessadocres-311">
        <source></source>
        <extracomment>DocumentNotFound. Status. Value: the document.</extracomment>
        <translation>找不到或无法打开文档 %s。</translation>
    </message>
    <message id="tessadocres-312">
        <source></source>
        <extracomment>CircularNode. Text of a tree node whose document stands above it already. Value: the text so far, which ends in a blank.</extracomment>
        <translation>%s(循环)</translation>
    </message>
    <message id="tessadocres-313">
        <source></source>
        <extracomment>CircularReference. Box. Value: the document.</extracomment>
        <translation>文档 %s 通过其引用引用了自身。</translation>
    </message>
    <message id="tessadocres-314">
        <source></source>
        <extracomment>WalkError. Box. Values: document, reason.</extracomment>
        <translation>无法读取 %s 的引用。%s</translation>
    </message>
    <message id="tessadocres-315">
        <source></source>
        <extracomment>Rename. Menu entry and heading of the pane.</extracomment>
        <translation>重命名</translation>
    </message>
    <message id="tessadocres-316">
        <source></source>
        <extracomment>Copy. Menu entry and heading of the pane.</extracomment>
        <translation>复制</translation>
    </message>
    <message id="tessadocres-317">
        <source></source>
        <extracomment>Replace. Menu entry and heading of the pane.</extracomment>
        <translation>替换</translation>
    </message>
    <message id="tessadocres-318">
        <source></source>
        <extracomment>PreviewError. Box. Value: the document.</extracomment>
        <translation>无法显示 %s 的预览。</translation>
    </message>
    <message id="tessadocres-319">
        <source></source>
        <extracomment>FullScreenTip. Tool tip of the preview's check box.</extracomment>
        <translation>在整个窗格中显示一张图片，而不是以网格显示查看过的文档。</translation>
    </message>
    <message id="tessadocres-320">
        <source></source>
        <extracomment>ClearPreviews. Menu entry of the preview.</extracomment>
        <translation>清除图片(&amp;C)</translation>
    </message>
    <message id="tessadocres-321">
        <source></source>
        <extracomment>OpenInCad. Menu entry.</extracomment>
        <translation>在 CAD 程序中打开</translation>
    </message>
    <message id="tessadocres-322">
        <source></source>
        <extracomment>CopyPath. Menu entry.</extracomment>
        <translation>复制路径</translation>
    </message>
    <message id="tessadocres-323">
        <source></source>
        <extracomment>ShowInFolder. Menu entry.</extracomment>
        <translation>在文件夹中显示</translation>
    </message>
    <message id="tessadocres-324">
        <source></source>
        <extracomment>ExpandAll. Menu entry of the tree.</extracomment>
        <translation>全部展开</translation>
    </message>
    <message id="tessadocres-326">
        <source></source>
        <extracomment>ReferenceName. Title of the column of references found when it shows file names.</extracomment>
        <translation>引用</translation>
    </message>
    <message id="tessadocres-327">
        <source></source>
        <extracomment>ReferencePath. Title of the column of references found when it shows whole paths.</extracomment>
        <translation>引用（路径）</translation>
    </message>
    <message id="tessadocres-328">
        <source></source>
        <extracomment>FoldersNotFound. Box. Value: the folders, joined by ";".</extracomment>
        <translation>未找到以下文件夹，已将其移除：%s</translation>
    </message>
    <message id="tessadocres-329">
        <source></source>
        <extracomment>MenuSearchScope. Button that opens the search scope form.</extracomment>
        <translation>搜索范围(&amp;C)...</translation>
    </message>
    <message id="tessadocres-331">
        <source></source>
        <extracomment>MenuReplace. Menu entry of the tree, title of the find and replace form, and label (a colon follows).</extracomment>
        <translation>替换</translation>
    </message>
    <message id="tessadocres-332">
        <source></source>
        <extracomment>About. Menu entry and title of the about box.</extracomment>
        <translation>关于 Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-333">
        <source></source>
        <extracomment>VendorPage. Button of the about box that opens the maker's page in the browser.</extracomment>
        <translation>网页(&amp;W)</translation>
    </message>
    <message id="tessadocres-334">
        <source></source>
        <extracomment>AboutDescription. Line of the about box.</extracomment>
        <translation>Tessaforma CAD 系列的文档管理器</translation>
    </message>
    <message id="tessadocres-335">
        <source></source>
        <extracomment>Version. Line of the about box; a blank and the version number follow.</extracomment>
        <translation>版本</translation>
    </message>
    <message id="tessadocres-336">
        <source></source>
        <extracomment>Disclaimer. Line of the about box.</extracomment>
        <translation>本程序不提供任何担保。使用条件见其许可证。</translation>
    </message>
    <message id="tessadocres-337">
        <source></source>
        <extracomment>AddProperty. Caption of the button that adds a property. Captions are state: it must differ from "Change".</extracomment>
        <translation>添加</translation>
    </message>
    <message id="tessadocres-338">
        <source></source>
        <extracomment>RemoveProperty. Button of the property pane.</extracomment>
        <translation>移除(&amp;M)</translation>
    </message>
    <message id="tessadocres-339">
        <source></source>
        <extracomment>ValueYes. Value of a yes or no property; compared when it is written: it must differ from "No".</extracomment>
        <translation>是</translation>
    </message>
    <message id="tessadocres-340">
        <source></source>
        <extracomment>ValueNo. Value of a yes or no property; compared when it is written: it must differ from "Yes".</extracomment>
        <translation>否</translation>
    </message>
    <message id="tessadocres-341">
        <source></source>
        <extracomment>NotLocked. Shown where the user of a lock stands.</extracomment>
        <translation>未锁定</translation>
    </message>
    <message id="tessadocres-342">
        <source></source>
        <extracomment>ToolbarRename. Toolbar button with the menu of rename, replace and copy.</extracomment>
        <translation>重命名(&amp;E)</translation>
    </message>
    <message id="tessadocres-343">
        <source></source>
        <extracomment>ToolbarView. Toolbar button with the menu of the panes.</extracomment>
        <translation>视图(&amp;V)</translation>
    </message>
    <message id="tessadocres-344">
        <source></source>
        <extracomment>ToolbarOpen. Toolbar button with the menu of the ways to open a document.</extracomment>
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="tessadocres-345">
        <source></source>
        <extracomment>IconBarHeading. Heading above the icon bar.</extracomment>
        <translation>功能</translation>
    </message>
    <message id="tessadocres-346">
        <source></source>
        <extracomment>LockedBy. Label in the property pane; the lock's user follows.</extracomment>
        <translation>锁定者</translation>
    </message>
    <message id="tessadocres-347">
        <source></source>
        <extracomment>FileName. Property of a search rule: the document's file name, compared with the property field. No double quotes.</extracomment>
        <translation>文件名</translation>
    </message>
    <message id="tessadocres-348">
        <source></source>
        <extracomment>UseFullScreen. Check box of the preview: one picture in the whole pane.</extracomment>
        <translation>显示单张图片(&amp;P)</translation>
    </message>
    <message id="tessadocres-349">
        <source></source>
        <extracomment>OpenedDocuments. Heading of a list.</extracomment>
        <translation>打开过的文档</translation>
    </message>
    <message id="tessadocres-350">
        <source></source>
        <extracomment>ExportedDone. In an export: the row was copied or updated.</extracomment>
        <translation>完成</translation>
    </message>
    <message id="tessadocres-351">
        <source></source>
        <extracomment>YesToAll. Button of the question whether to create a folder.</extracomment>
        <translation>全部是(&amp;L)</translation>
    </message>
    <message id="tessadocres-352">
        <source></source>
        <extracomment>CreateFolderQuestion. Question with the buttons Yes, Yes to all and No. Value: the folder.</extracomment>
        <translation>文件夹 %s 不存在。是否要创建它？</translation>
    </message>
    <message id="tessadocres-353">
        <source></source>
        <extracomment>ParentNotOpenedTip. Tool tip of a parent document. Value: reason.</extracomment>
        <translation>无法打开：%s</translation>
    </message>
    <message id="tessadocres-354">
        <source></source>
        <extracomment>CopyRows. Status. Values: number of rows, number of missing documents.</extracomment>
        <translation>引用：%s，缺失：%s</translation>
    </message>
    <message id="tessadocres-355">
        <source></source>
        <extracomment>CheckingTargets. Text of a progress label.</extracomment>
        <translation>正在检查目标...</translation>
    </message>
    <message id="tessadocres-356">
        <source></source>
        <extracomment>CheckingTarget. Status. Value: the new name or replacement.</extracomment>
        <translation>正在检查 %s</translation>
    </message>
    <message id="tessadocres-357">
        <source></source>
        <extracomment>RenameDone. Status. Values: number of documents updated, number failed.</extracomment>
        <translation>已更新：%s，失败：%s</translation>
    </message>
    <message id="tessadocres-358">
        <source></source>
        <extracomment>UpdatingDocument. Status. Value: the document.</extracomment>
        <translation>正在更新 %s</translation>
    </message>
    <message id="tessadocres-359">
        <source></source>
        <extracomment>ReplaceWithLabel. Label in the rename pane; a colon follows.</extracomment>
        <translation>替换为</translation>
    </message>
    <message id="tessadocres-360">
        <source></source>
        <extracomment>SearchFirstQuestion. Question with the buttons Yes, No and Cancel.</extracomment>
        <translation>尚未查找使用此文档的文档，它们将保留旧的引用。是否先查找这些文档？</translation>
    </message>
    <message id="tessadocres-361">
        <source></source>
        <extracomment>TickStays. Box when a row is ticked or cleared that must stay as it is.</extracomment>
        <translation>无法更改此行的勾选：其文档为只读，或者它是始终会被更新的父文档。</translation>
    </message>
    <message id="tessadocres-362">
        <source></source>
        <extracomment>PreviewOf. Status. Value: the document.</extracomment>
        <translation>%s 的预览</translation>
    </message>
    <message id="tessadocres-363">
        <source></source>
        <extracomment>NoDocument. Status.</extracomment>
        <translation>没有打开的文档。</translation>
    </message>
    <message id="tessadocres-364">
        <source></source>
        <extracomment>SearchError. Box. Value: reason.</extracomment>
        <translation>搜索提前结束。%s</translation>
    </message>
    <message id="tessadocres-365">
        <source></source>
        <extracomment>TargetFolderReadOnly. Box. Value: the folder.</extracomment>
        <translation>文件夹 %s 为只读。请选择其他文件夹。</translation>
    </message>
    <message id="tessadocres-366">
        <source></source>
        <extracomment>CopyingTo. Status. Value: the target.</extracomment>
        <translation>正在复制到 %s</translation>
    </message>
    <message id="tessadocres-367">
        <source></source>
        <extracomment>ConfigurationLoadError. Box. Value: reason.</extracomment>
        <translation>无法读取配置。%s</translation>
    </message>
    <message id="tessadocres-368">
        <source></source>
        <extracomment>HyperlinkSaveError. Box. Value: reason.</extracomment>
        <translation>无法保存超链接。%s</translation>
    </message>
    <message id="tessadocres-369">
        <source></source>
        <extracomment>HyperlinkCount. Status. Value: their number.</extracomment>
        <translation>超链接：%s</translation>
    </message>
    <message id="tessadocres-370">
        <source></source>
        <extracomment>OverwriteTitle. Title of a question.</extracomment>
        <translation>覆盖文件</translation>
    </message>
    <message id="tessadocres-371">
        <source></source>
        <extracomment>Kilobytes. Size of a file. Value: units of 1000 bytes.</extracomment>
        <translation>%s KB</translation>
    </message>
    <message id="tessadocres-372">
        <source></source>
        <extracomment>ExportError. Box. Value: reason.</extracomment>
        <translation>无法写入电子表格。%s</translation>
    </message>
    <message id="tessadocres-373">
        <source></source>
        <extracomment>AccessInUse. Box. Value: the document.</extracomment>
        <translation>文档 %s 正由另一个程序使用。请在该程序中将其关闭，然后重试。</translation>
    </message>
    <message id="tessadocres-374">
        <source></source>
        <extracomment>AccessReadOnly. Box. Value: the document.</extracomment>
        <translation>文档 %s 为只读。请取消其写保护，然后重试。</translation>
    </message>
    <message id="tessadocres-375">
        <source></source>
        <extracomment>AccessRefused. Box. Value: the document.</extracomment>
        <translation>无法写入文档 %s。请检查它是否存在，以及您是否有权更改它。</translation>
    </message>
    <message id="tessadocres-376">
        <source></source>
        <extracomment>MenuUndelete. Menu entry of a configuration that is marked as deleted.</extracomment>
        <translation>取消删除(&amp;U)</translation>
    </message>
    <message id="tessadocres-377">
        <source></source>
        <extracomment>FoldersLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>已搜索的文件夹：%s</translation>
    </message>
    <message id="tessadocres-378">
        <source></source>
        <extracomment>DocumentsLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>已搜索的文档：%s</translation>
    </message>
    <message id="tessadocres-379">
        <source></source>
        <extracomment>FilesNotRead. Text of a progress label. Value: their number.</extracomment>
        <translation>无法读取的文件：%s</translation>
    </message>
    <message id="tessadocres-380">
        <source></source>
        <extracomment>LockedByOther. Box. Values: document, user.</extracomment>
        <translation>文档 %s 已被 %s 锁定。只有该用户才能解锁。</translation>
    </message>
    <message id="tessadocres-381">
        <source></source>
        <extracomment>Lock. Menu entry.</extracomment>
        <translation>锁定</translation>
    </message>
    <message id="tessadocres-382">
        <source></source>
        <extracomment>Unlock. Menu entry.</extracomment>
        <translation>解锁</translation>
    </message>
    <message id="tessadocres-383">
        <source></source>
        <extracomment>OpenWebFolder. Menu entry and title of the dialog.</extracomment>
        <translation>从 Web 文件夹打开</translation>
    </message>
    <message id="tessadocres-394">
        <source></source>
        <extracomment>UseViewer. Check box of the setup pane.</extracomment>
        <translation>在 3D 查看器中显示模型(&amp;3)</translation>
    </message>
    <message id="tessadocres-400">
        <source></source>
        <extracomment>LoggingFrame. Frame of the setup pane.</extracomment>
        <translation>性能日志</translation>
    </message>
    <message id="tessadocres-401">
        <source></source>
        <extracomment>UseLogging. Check box of the setup pane.</extracomment>
        <translation>发送性能日志(&amp;L)</translation>
    </message>
</context>
</TS>

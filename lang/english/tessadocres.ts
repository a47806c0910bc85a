<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name></name>
    <message id="tessadocres-1">
        <source></source>
        <extracomment>ReplaceButton. Button of the find and replace form that replaces the hit; in the copy pane, the button that opens this form.</extracomment>
        <translation>Re&amp;place</translation>
    </message>
    <message id="tessadocres-2">
        <source></source>
        <extracomment>DocumentToFind. Label of the field with the document whose uses are looked for.</extracomment>
        <translation>Document</translation>
    </message>
    <message id="tessadocres-3">
        <source></source>
        <extracomment>CopyReferencesToo. Check box of the copy pane: copy the references of the document as well.</extracomment>
        <translation>Copy re&amp;ferences</translation>
    </message>
    <message id="tessadocres-4">
        <source></source>
        <extracomment>ClearAll. Button of the copy pane while all rows are ticked. The caption is the button's state: it must differ from "Select all".</extracomment>
        <translation>Clear all</translation>
    </message>
    <message id="tessadocres-5">
        <source></source>
        <extracomment>CopyWord. Menu entry of the tree, title of a column, state of a parent row that is copied, and label (a colon follows). Compared with the state of a row: it must differ from "Update".</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="tessadocres-6">
        <source></source>
        <extracomment>Path. Title of the first column of a list until its long form is set.</extracomment>
        <translation>Path</translation>
    </message>
    <message id="tessadocres-7">
        <source></source>
        <extracomment>Refresh. Button that reads a list again.</extracomment>
        <translation>Re&amp;fresh</translation>
    </message>
    <message id="tessadocres-8">
        <source></source>
        <extracomment>FileNameColumn. Title of the column of the copy list with the name of the file.</extracomment>
        <translation>File name</translation>
    </message>
    <message id="tessadocres-9">
        <source></source>
        <extracomment>ParentDocuments. Check box and frame of the copy pane around the list of documents that use the source.</extracomment>
        <translation>Parent documents</translation>
    </message>
    <message id="tessadocres-10">
        <source></source>
        <extracomment>Browse. Button that opens a file or folder dialog.</extracomment>
        <translation>&amp;Browse...</translation>
    </message>
    <message id="tessadocres-11">
        <source></source>
        <extracomment>AsSuffix. Option of the copy pane: the text goes behind the names of the copies.</extracomment>
        <translation>As s&amp;uffix</translation>
    </message>
    <message id="tessadocres-12">
        <source></source>
        <extracomment>AsPrefix. Option of the copy pane: the text goes in front of the names of the copies.</extracomment>
        <translation>As prefi&amp;x</translation>
    </message>
    <message id="tessadocres-13">
        <source></source>
        <extracomment>TargetFolder. Label in the copy pane; a colon follows.</extracomment>
        <translation>Target folder</translation>
    </message>
    <message id="tessadocres-14">
        <source></source>
        <extracomment>NewName. Label in the rename and copy panes; a colon follows.</extracomment>
        <translation>New name</translation>
    </message>
    <message id="tessadocres-15">
        <source></source>
        <extracomment>Apply. Button that carries out what the pane shows.</extracomment>
        <translation>&amp;Apply</translation>
    </message>
    <message id="tessadocres-16">
        <source></source>
        <extracomment>Reset. Button that empties the list of documents found, or drops edits.</extracomment>
        <translation>&amp;Reset</translation>
    </message>
    <message id="tessadocres-17">
        <source></source>
        <extracomment>FindAgain. Caption of a search button after its first search. Captions are state: it must differ from "Stop".</extracomment>
        <translation>Find again</translation>
    </message>
    <message id="tessadocres-18">
        <source></source>
        <extracomment>LookIn. Label of a field with folders.</extracomment>
        <translation>Look in</translation>
    </message>
    <message id="tessadocres-19">
        <source></source>
        <extracomment>UpdateWord. Title of the column with the ticks, and state of a parent row that is brought up to date. It must differ from "Copy".</extracomment>
        <translation>Update</translation>
    </message>
    <message id="tessadocres-20">
        <source></source>
        <extracomment>UsedBy. Heading of a list of documents that use another.</extracomment>
        <translation>Used by</translation>
    </message>
    <message id="tessadocres-21">
        <source></source>
        <extracomment>Relation. Title of the column that says how a document is used.</extracomment>
        <translation>Relation</translation>
    </message>
    <message id="tessadocres-22">
        <source></source>
        <extracomment>ReferenceTable. Title of the column that says in which of its two tables a document holds the reference, by number.</extracomment>
        <translation>Table</translation>
    </message>
    <message id="tessadocres-23">
        <source></source>
        <extracomment>ReferenceNumber. Title of the column with the number of the reference in its table.</extracomment>
        <translation>Number</translation>
    </message>
    <message id="tessadocres-25">
        <source></source>
        <extracomment>MenuOpen. Menu entry that opens the document in the CAD program.</extracomment>
        <translation>&amp;Open</translation>
    </message>
    <message id="tessadocres-26">
        <source></source>
        <extracomment>MenuExport. Menu entry that writes the list to a spreadsheet.</extracomment>
        <translation>&amp;Export list</translation>
    </message>
    <message id="tessadocres-27">
        <source></source>
        <extracomment>DocumentColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>Document</translation>
    </message>
    <message id="tessadocres-28">
        <source></source>
        <extracomment>FileColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>File</translation>
    </message>
    <message id="tessadocres-29">
        <source></source>
        <extracomment>SourcePath. Title of the copy list's column of sources when it shows whole paths.</extracomment>
        <translation>Source path</translation>
    </message>
    <message id="tessadocres-30">
        <source></source>
        <extracomment>TargetPath. Title of a column of targets when it shows whole paths.</extracomment>
        <translation>Target path</translation>
    </message>
    <message id="tessadocres-31">
        <source></source>
        <extracomment>HolderName. Title of the column of documents that use the target when it shows file names.</extracomment>
        <translation>Used in</translation>
    </message>
    <message id="tessadocres-32">
        <source></source>
        <extracomment>TargetTip. Tool tip of the target of a parent document.</extracomment>
        <translation>Double-click to choose another target.</translation>
    </message>
    <message id="tessadocres-33">
        <source></source>
        <extracomment>DefaultPrefix. What the copy pane puts in front of names at first; the blank at its end is part of it.</extracomment>
        <translation>Copy of </translation>
    </message>
    <message id="tessadocres-34">
        <source></source>
        <extracomment>CopyTargetWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>for the copies</translation>
    </message>
    <message id="tessadocres-35">
        <source></source>
        <extracomment>PartFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Parts (*.tfmprt, *.prt)|*.tfmprt;*.prt</translation>
    </message>
    <message id="tessadocres-36">
        <source></source>
        <extracomment>AssemblyFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Assemblies (*.tfmasm, *.asm)|*.tfmasm;*.asm</translation>
    </message>
    <message id="tessadocres-37">
        <source></source>
        <extracomment>ChooseDocument. Title of the dialogs that choose a target file or the replacement of a missing file.</extracomment>
        <translation>Choose a document</translation>
    </message>
    <message id="tessadocres-38">
        <source></source>
        <extracomment>ParentReadOnly. Box when the row of a read-only parent document is ticked.</extracomment>
        <translation>This document is read-only, so it can't be brought up to date. Take away its write protection first.</translation>
    </message>
    <message id="tessadocres-39">
        <source></source>
        <extracomment>DrawingFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Drawings (*.tfmdrw, *.drw)|*.tfmdrw;*.drw</translation>
    </message>
    <message id="tessadocres-40">
        <source></source>
        <extracomment>Close. Button that closes a form.</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="tessadocres-41">
        <source></source>
        <extracomment>ExportDone. Status after an export. Value: number of lines.</extracomment>
        <translation>The list was written to the spreadsheet, lines: %s</translation>
    </message>
    <message id="tessadocres-42">
        <source></source>
        <extracomment>ExportFailed. Status after an export that failed.</extracomment>
        <translation>The list could not be written to the spreadsheet.</translation>
    </message>
    <message id="tessadocres-43">
        <source></source>
        <extracomment>ExportEmpty. Box when an empty list is exported.</extracomment>
        <translation>The list is empty, so there is nothing to export.</translation>
    </message>
    <message id="tessadocres-44">
        <source></source>
        <extracomment>Status. Title of a column in an export, and suggested name of a property.</extracomment>
        <translation>Status</translation>
    </message>
    <message id="tessadocres-45">
        <source></source>
        <extracomment>TickedYes. In an export: the row is ticked.</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="tessadocres-46">
        <source></source>
        <extracomment>TickedNo. In an export: the row is not ticked.</extracomment>
        <translation>No</translation>
    </message>
    <message id="tessadocres-47">
        <source></source>
        <extracomment>Ok. Button.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="tessadocres-48">
        <source></source>
        <extracomment>RowMissing. Box when a missing document of a list is opened.</extracomment>
        <translation>This document is missing and can't be opened.</translation>
    </message>
    <message id="tessadocres-49">
        <source></source>
        <extracomment>SelectAll. Button of the copy pane while not all rows are ticked. The caption is the button's state: it must differ from "Clear all".</extracomment>
        <translation>Select all</translation>
    </message>
    <message id="tessadocres-51">
        <source></source>
        <extracomment>FolderNotMade. Status, box and tool tip during a copy. Value: the folder.</extracomment>
        <translation>The folder %s can't be created. Check that you may write there.</translation>
    </message>
    <message id="tessadocres-52">
        <source></source>
        <extracomment>RenameLoadFailed. Box of the rename pane. Values: document, reason.</extracomment>
        <translation>The document %s can't be prepared for renaming. %s</translation>
    </message>
    <message id="tessadocres-53">
        <source></source>
        <extracomment>Stop. Caption of a search button while it searches. Captions are state: it must differ from "Find now" and "Find again".</extracomment>
        <translation>Stop</translation>
    </message>
    <message id="tessadocres-55">
        <source></source>
        <extracomment>NotFound. Mark of something that is not there.</extracomment>
        <translation>Not found</translation>
    </message>
    <message id="tessadocres-57">
        <source></source>
        <extracomment>NoTargetFile. Box when a copy is started without a target.</extracomment>
        <translation>Enter the file that the copy is to have.</translation>
    </message>
    <message id="tessadocres-58">
        <source></source>
        <extracomment>TargetOfOtherType. Box when the target's extension is of another type.</extracomment>
        <translation>The copy must be of the same type as the source: part, assembly or drawing.</translation>
    </message>
    <message id="tessadocres-59">
        <source></source>
        <extracomment>SourceMissing. Question with the buttons Yes, No, No to all and Cancel before a copy. Value: the document.</extracomment>
        <translation>The document %s is missing. Do you want to choose another one in its place?</translation>
    </message>
    <message id="tessadocres-60">
        <source></source>
        <extracomment>Working. Text of a progress label.</extracomment>
        <translation>Working...</translation>
    </message>
    <message id="tessadocres-61">
        <source></source>
        <extracomment>Ready. Text of a progress label at the end.</extracomment>
        <translation>Ready</translation>
    </message>
    <message id="tessadocres-62">
        <source></source>
        <extracomment>CopyCancelled. Status after Cancel at a question. Files copied so far stay.</extracomment>
        <translation>The copy was cancelled.</translation>
    </message>
    <message id="tessadocres-63">
        <source></source>
        <extracomment>CopyNotMade. Tool tip of a row that was left out of a copy.</extracomment>
        <translation>Not copied.</translation>
    </message>
    <message id="tessadocres-64">
        <source></source>
        <extracomment>TargetKept. Tool tip of a row whose target exists and was not to be overwritten.</extracomment>
        <translation>Not copied: the existing file was kept.</translation>
    </message>
    <message id="tessadocres-65">
        <source></source>
        <extracomment>RowNotCopied. Tool tip of a row that was passed over.</extracomment>
        <translation>Not copied: the row is not ticked, or its document is missing.</translation>
    </message>
    <message id="tessadocres-66">
        <source></source>
        <extracomment>CopyDone. Status at the end of a copy. Values: number of rows copied, number of rows failed.</extracomment>
        <translation>Copied: %s, failed: %s</translation>
    </message>
    <message id="tessadocres-68">
        <source></source>
        <extracomment>CopyNotOpened. Question. Value: the copy.</extracomment>
        <translation>The references of the copy %s can't be brought up to date, since it or its source can't be opened. Go on with the other documents?</translation>
    </message>
    <message id="tessadocres-69">
        <source></source>
        <extracomment>NotUpdatedTip. Tool tip of a row after a failure. Value: reason.</extracomment>
        <translation>Not brought up to date: %s</translation>
    </message>
    <message id="tessadocres-70">
        <source></source>
        <extracomment>NotSaved. Question. Values: document, reason.</extracomment>
        <translation>The document %s can't be saved. %s Go on with the other documents?</translation>
    </message>
    <message id="tessadocres-72">
        <source></source>
        <extracomment>UpdatingReferences. Status. Value: the document.</extracomment>
        <translation>Updating the references in %s</translation>
    </message>
    <message id="tessadocres-73">
        <source></source>
        <extracomment>NotOpened. Question. Values: document, reason.</extracomment>
        <translation>The document %s can't be opened to update its references. %s Go on with the other documents?</translation>
    </message>
    <message id="tessadocres-74">
        <source></source>
        <extracomment>OverwriteQuestion. Question with the buttons Yes, No and Cancel. Value: the file.</extracomment>
        <translation>The file %s exists. Do you want to overwrite it?</translation>
    </message>
    <message id="tessadocres-75">
        <source></source>
        <extracomment>SaveChanges. Button of the editors that writes the pending edits.</extracomment>
        <translation>&amp;Save changes</translation>
    </message>
    <message id="tessadocres-76">
        <source></source>
        <extracomment>HoldersFound. Status after a search for documents that use the source. Value: number of rows.</extracomment>
        <translation>References found: %s</translation>
    </message>
    <message id="tessadocres-77">
        <source></source>
        <extracomment>ParentRowTip. Tool tip of a row of the parent list.</extracomment>
        <translation>Click the box to choose what becomes of this document: left as it is, updated, or (a drawing) copied.</translation>
    </message>
    <message id="tessadocres-78">
        <source></source>
        <extracomment>ReadOnlyMark. Mark of a read-only document, put in front of its name in one list and behind it in another: a blank at both ends.</extracomment>
        <translation> (read-only) </translation>
    </message>
    <message id="tessadocres-79">
        <source></source>
        <extracomment>Help. Toolbar button, menu entry and button of the description strip.</extracomment>
        <translation>Help</translation>
    </message>
    <message id="tessadocres-80">
        <source></source>
        <extracomment>SearchScope. Title of the form that says where and for what to search.</extracomment>
        <translation>Search scope</translation>
    </message>
    <message id="tessadocres-81">
        <source></source>
        <extracomment>PropertyName. Title of the column with the names of properties.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-82">
        <source></source>
        <extracomment>PropertyValue. Title of the column with the values of properties.</extracomment>
        <translation>Value</translation>
    </message>
    <message id="tessadocres-83">
        <source></source>
        <extracomment>SearchScopeFrame. Frame of the search scope form.</extracomment>
        <translation>Look in</translation>
    </message>
    <message id="tessadocres-84">
        <source></source>
        <extracomment>FindMirrored. Check box: find parts that mirror the document.</extracomment>
        <translation>&amp;Mirrored parts</translation>
    </message>
    <message id="tessadocres-85">
        <source></source>
        <extracomment>FolderLists. Button that drops down the named folder lists.</extracomment>
        <translation>Folder l&amp;ists</translation>
    </message>
    <message id="tessadocres-86">
        <source></source>
        <extracomment>RecentFolders. Heading of a list of folders.</extracomment>
        <translation>Recent folders</translation>
    </message>
    <message id="tessadocres-87">
        <source></source>
        <extracomment>FindReferences. Check box: find plain references to the document.</extracomment>
        <translation>Re&amp;ferences</translation>
    </message>
    <message id="tessadocres-88">
        <source></source>
        <extracomment>FindInContext. Check box: find parts that refer to the assembly in context.</extracomment>
        <translation>In-conte&amp;xt references</translation>
    </message>
    <message id="tessadocres-89">
        <source></source>
        <extracomment>Cancel. Button.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="tessadocres-90">
        <source></source>
        <extracomment>LookInWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>where to look</translation>
    </message>
    <message id="tessadocres-91">
        <source></source>
        <extracomment>ChooseFolder. Title of the folder dialog. Value: what the folder is for.</extracomment>
        <translation>Choose a folder: %s</translation>
    </message>
    <message id="tessadocres-92">
        <source></source>
        <extracomment>BecomesMark. Stands between an old and a new name that is not saved yet; never empty.</extracomment>
        <translation> -&gt; </translation>
    </message>
    <message id="tessadocres-93">
        <source></source>
        <extracomment>ConfigurationNameEmpty. Box when a configuration is given an empty name.</extracomment>
        <translation>A configuration must have a name.</translation>
    </message>
    <message id="tessadocres-94">
        <source></source>
        <extracomment>ConfigurationNameTaken. Box when a configuration is given a name that another one has.</extracomment>
        <translation>There is another configuration of this name. Choose a different name.</translation>
    </message>
    <message id="tessadocres-95">
        <source></source>
        <extracomment>ConfigurationStays. Box when a configuration that must stay is deleted.</extracomment>
        <translation>This configuration can't be deleted.</translation>
    </message>
    <message id="tessadocres-96">
        <source></source>
        <extracomment>ConfigurationsNotSaved. Status after a save that failed.</extracomment>
        <translation>The configurations were not saved completely.</translation>
    </message>
    <message id="tessadocres-97">
        <source></source>
        <extracomment>ConfigurationsSaved. Status.</extracomment>
        <translation>The configurations were saved.</translation>
    </message>
    <message id="tessadocres-98">
        <source></source>
        <extracomment>ConfigurationSaveError. Box. Value: reason.</extracomment>
        <translation>The configurations can't be saved. %s</translation>
    </message>
    <message id="tessadocres-99">
        <source></source>
        <extracomment>ConfigurationsOf. Root of the configuration tree. Value: title of the document.</extracomment>
        <translation>Configurations of %s</translation>
    </message>
    <message id="tessadocres-100">
        <source></source>
        <extracomment>ConfigurationCount. Status. Value: their number.</extracomment>
        <translation>Configurations: %s</translation>
    </message>
    <message id="tessadocres-101">
        <source></source>
        <extracomment>ConfigurationsNotLoaded. Status. Value: the document.</extracomment>
        <translation>The configurations of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-103">
        <source></source>
        <extracomment>MatchCase. Check box of the find and replace form.</extracomment>
        <translation>Match &amp;case</translation>
    </message>
    <message id="tessadocres-104">
        <source></source>
        <extracomment>FindNext. Button of the find and replace form.</extracomment>
        <translation>&amp;Find next</translation>
    </message>
    <message id="tessadocres-105">
        <source></source>
        <extracomment>ReplaceAll. Button of the find and replace form.</extracomment>
        <translation>Replace &amp;all</translation>
    </message>
    <message id="tessadocres-106">
        <source></source>
        <extracomment>ReplaceWith. Label in the find and replace form.</extracomment>
        <translation>Replace with:</translation>
    </message>
    <message id="tessadocres-107">
        <source></source>
        <extracomment>FindWhat. Label in the find and replace form.</extracomment>
        <translation>Find:</translation>
    </message>
    <message id="tessadocres-108">
        <source></source>
        <extracomment>TextNotFound. Box of the find and replace form. Value: the text.</extracomment>
        <translation>The text "%s" was not found.</translation>
    </message>
    <message id="tessadocres-109">
        <source></source>
        <extracomment>FindUpwards. Check box of a find form: from the end to the start.</extracomment>
        <translation>Search &amp;up</translation>
    </message>
    <message id="tessadocres-110">
        <source></source>
        <extracomment>HyperlinksSaved. Status.</extracomment>
        <translation>The hyperlinks were saved.</translation>
    </message>
    <message id="tessadocres-111">
        <source></source>
        <extracomment>HyperlinksNotSaved. Status after a save that failed.</extracomment>
        <translation>The hyperlinks were not saved completely.</translation>
    </message>
    <message id="tessadocres-113">
        <source></source>
        <extracomment>MenuOpenFile. Menu entry.</extracomment>
        <translation>&amp;Open document...</translation>
    </message>
    <message id="tessadocres-114">
        <source></source>
        <extracomment>HyperlinksNotLoaded. Status. Value: the document.</extracomment>
        <translation>The hyperlinks of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-115">
        <source></source>
        <extracomment>HyperlinkLoadError. Box. Value: reason.</extracomment>
        <translation>The hyperlinks can't be read. %s</translation>
    </message>
    <message id="tessadocres-116">
        <source></source>
        <extracomment>Size. Title of a column.</extracomment>
        <translation>Size</translation>
    </message>
    <message id="tessadocres-117">
        <source></source>
        <extracomment>Type. Title of a column: the type of a file or property, or the table of a reference.</extracomment>
        <translation>Type</translation>
    </message>
    <message id="tessadocres-118">
        <source></source>
        <extracomment>LastSaved. Label in the property pane and title of a column.</extracomment>
        <translation>Last saved</translation>
    </message>
    <message id="tessadocres-119">
        <source></source>
        <extracomment>Attributes. Title of a column with the letters of the file's attributes.</extracomment>
        <translation>Attributes</translation>
    </message>
    <message id="tessadocres-120">
        <source></source>
        <extracomment>ReferenceListError. Box. Value: reason.</extracomment>
        <translation>The references can't be listed. %s</translation>
    </message>
    <message id="tessadocres-121">
        <source></source>
        <extracomment>DocumentNotReadable. Box. Value: the document.</extracomment>
        <translation>The document %s can't be read.</translation>
    </message>
    <message id="tessadocres-122">
        <source></source>
        <extracomment>AppTitle. Name of the program: title of all boxes.</extracomment>
        <translation>Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-123">
        <source></source>
        <extracomment>NoToAll. Button of a question with up to four buttons.</extracomment>
        <translation>No to &amp;all</translation>
    </message>
    <message id="tessadocres-124">
        <source></source>
        <extracomment>No. Button of a question with up to four buttons.</extracomment>
        <translation>&amp;No</translation>
    </message>
    <message id="tessadocres-125">
        <source></source>
        <extracomment>Yes. Button of a question with up to four buttons.</extracomment>
        <translation>&amp;Yes</translation>
    </message>
    <message id="tessadocres-126">
        <source></source>
        <extracomment>Preview. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Preview</translation>
    </message>
    <message id="tessadocres-127">
        <source></source>
        <extracomment>Properties. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Properties</translation>
    </message>
    <message id="tessadocres-128">
        <source></source>
        <extracomment>References. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>References</translation>
    </message>
    <message id="tessadocres-129">
        <source></source>
        <extracomment>WhereUsed. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Where used</translation>
    </message>
    <message id="tessadocres-130">
        <source></source>
        <extracomment>Search. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Search</translation>
    </message>
    <message id="tessadocres-131">
        <source></source>
        <extracomment>Configurations. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Configurations</translation>
    </message>
    <message id="tessadocres-132">
        <source></source>
        <extracomment>Hyperlinks. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Hyperlinks</translation>
    </message>
    <message id="tessadocres-133">
        <source></source>
        <extracomment>Setup. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Setup</translation>
    </message>
    <message id="tessadocres-134">
        <source></source>
        <extracomment>Options. Heading of a group of options.</extracomment>
        <translation>Options</translation>
    </message>
    <message id="tessadocres-135">
        <source></source>
        <extracomment>PreviewHelp. Description strip of the preview.</extracomment>
        <translation>Shows the picture stored in the document. Click documents in the tree to see their pictures side by side.</translation>
    </message>
    <message id="tessadocres-136">
        <source></source>
        <extracomment>PropertiesHelp. Description strip of the property pane.</extracomment>
        <translation>Shows and changes what the document says about itself: summary, custom properties, and the properties of each configuration.</translation>
    </message>
    <message id="tessadocres-137">
        <source></source>
        <extracomment>ReferencesHelp. Description strip of the reference pane.</extracomment>
        <translation>Lists the document and what it refers to directly, with size, date and attributes of each file.</translation>
    </message>
    <message id="tessadocres-138">
        <source></source>
        <extracomment>ConfigurationsHelp. Description strip of the configuration pane.</extracomment>
        <translation>Renames and deletes the configurations of the document. Nothing is written before you save.</translation>
    </message>
    <message id="tessadocres-139">
        <source></source>
        <extracomment>WhereUsedHelp. Description strip of the where-used pane.</extracomment>
        <translation>Finds the documents that use the document, in the folders that you name.</translation>
    </message>
    <message id="tessadocres-140">
        <source></source>
        <extracomment>SearchHelp. Description strip of the search pane.</extracomment>
        <translation>Finds documents by rules on their properties, in the folders that you name.</translation>
    </message>
    <message id="tessadocres-141">
        <source></source>
        <extracomment>RenameHelp. Description strip of the rename pane.</extracomment>
        <translation>Renames the document, or puts another one in its place, and updates the documents that use it.</translation>
    </message>
    <message id="tessadocres-142">
        <source></source>
        <extracomment>CopyHelp. Description strip of the copy pane.</extracomment>
        <translation>Copies the document with its references. The copies refer to each other; parent documents can be updated or copied as well.</translation>
    </message>
    <message id="tessadocres-143">
        <source></source>
        <extracomment>HyperlinksHelp. Description strip of the hyperlink pane.</extracomment>
        <translation>Changes the hyperlinks stored in the document. Double-click a hyperlink to open it. Nothing is written before you save.</translation>
    </message>
    <message id="tessadocres-144">
        <source></source>
        <extracomment>SetupHelp. Description strip of the setup pane.</extracomment>
        <translation>Sets the options, and keeps the named folder lists that the search panes offer.</translation>
    </message>
    <message id="tessadocres-145">
        <source></source>
        <extracomment>OpenFilter. Filter of the open dialog, as pairs of label and patterns.</extracomment>
        <translation>All documents (*.tfmasm, *.tfmprt, *.tfmdrw, *.asm, *.prt)|*.tfmasm;*.tfmprt;*.tfmdrw;*.asm;*.prt|Assemblies (*.tfmasm, *.asm)|*.tfmasm;*.asm|Parts (*.tfmprt, *.prt)|*.tfmprt;*.prt|Drawings (*.tfmdrw)|*.tfmdrw</translation>
    </message>
    <message id="tessadocres-146">
        <source></source>
        <extracomment>OldFormat. Shown instead of a list, and as status.</extracomment>
        <translation>This document is of an older format. Save it once in the CAD program to edit it here.</translation>
    </message>
    <message id="tessadocres-147">
        <source></source>
        <extracomment>RelationDefault. How a document uses another: every case that has no word of its own. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Reference</translation>
    </message>
    <message id="tessadocres-148">
        <source></source>
        <extracomment>RelationAssembly. How a document uses another: a part that refers to an assembly. No path separator, no colon; differs from the two others.</extracomment>
        <translation>In-context</translation>
    </message>
    <message id="tessadocres-149">
        <source></source>
        <extracomment>RelationPart. How a document uses another: a part that refers to a part. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Mirrored</translation>
    </message>
    <message id="tessadocres-150">
        <source></source>
        <extracomment>Details. Button that shows the reason of a failure.</extracomment>
        <translation>&amp;Details</translation>
    </message>
    <message id="tessadocres-151">
        <source></source>
        <extracomment>CurrentDocument. Label of the document that a pane shows.</extracomment>
        <translation>Current document</translation>
    </message>
    <message id="tessadocres-152">
        <source></source>
        <extracomment>SummaryTab. Tab of the property pane.</extracomment>
        <translation>Summary</translation>
    </message>
    <message id="tessadocres-153">
        <source></source>
        <extracomment>CustomTab. Tab of the property pane.</extracomment>
        <translation>Custom</translation>
    </message>
    <message id="tessadocres-154">
        <source></source>
        <extracomment>ConfigurationTab. Tab of the property pane.</extracomment>
        <translation>Configuration-specific</translation>
    </message>
    <message id="tessadocres-155">
        <source></source>
        <extracomment>NameField. Label of the field with a property's name.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-156">
        <source></source>
        <extracomment>ValueField. Label of the field with a property's value.</extracomment>
        <translation>Value</translation>
    </message>
    <message id="tessadocres-157">
        <source></source>
        <extracomment>Comments. Label in the property pane and property of a search rule.</extracomment>
        <translation>Comments</translation>
    </message>
    <message id="tessadocres-158">
        <source></source>
        <extracomment>Keywords. Label in the property pane and property of a search rule.</extracomment>
        <translation>Keywords</translation>
    </message>
    <message id="tessadocres-159">
        <source></source>
        <extracomment>Author. Label in the property pane and property of a search rule.</extracomment>
        <translation>Author</translation>
    </message>
    <message id="tessadocres-160">
        <source></source>
        <extracomment>Subject. Label in the property pane and property of a search rule.</extracomment>
        <translation>Subject</translation>
    </message>
    <message id="tessadocres-161">
        <source></source>
        <extracomment>Title. Label in the property pane and property of a search rule.</extracomment>
        <translation>Title</translation>
    </message>
    <message id="tessadocres-162">
        <source></source>
        <extracomment>TypeField. Label of the field with a property's type.</extracomment>
        <translation>Type</translation>
    </message>
    <message id="tessadocres-163">
        <source></source>
        <extracomment>Change. Caption of the button that adds, when the name exists. Captions are state: it must differ from "Add".</extracomment>
        <translation>Change</translation>
    </message>
    <message id="tessadocres-164">
        <source></source>
        <extracomment>TypeText. Type of a property. The four types must differ.</extracomment>
        <translation>Text</translation>
    </message>
    <message id="tessadocres-165">
        <source></source>
        <extracomment>TypeDate. Type of a property. The four types must differ.</extracomment>
        <translation>Date</translation>
    </message>
    <message id="tessadocres-166">
        <source></source>
        <extracomment>TypeNumber. Type of a property. The four types must differ.</extracomment>
        <translation>Number</translation>
    </message>
    <message id="tessadocres-167">
        <source></source>
        <extracomment>TypeYesNo. Type of a property. The four types must differ.</extracomment>
        <translation>Yes or no</translation>
    </message>
    <message id="tessadocres-168">
        <source></source>
        <extracomment>ValueOfOtherType. Box when a property is added.</extracomment>
        <translation>The value does not fit the type. Enter a date or a number as the type says, or choose another type.</translation>
    </message>
    <message id="tessadocres-169">
        <source></source>
        <extracomment>PropertiesNotOpened. Box. Value: the document.</extracomment>
        <translation>The document %s can't be opened, so the properties were not written. Your changes are still in the pane.</translation>
    </message>
    <message id="tessadocres-170">
        <source></source>
        <extracomment>PropertiesWriteError. Box. Value: reason.</extracomment>
        <translation>The properties can't be written. %s</translation>
    </message>
    <message id="tessadocres-171">
        <source></source>
        <extracomment>LeaveConfiguration. Question with the buttons Yes and No.</extracomment>
        <translation>The properties of the configuration were changed. Write them before going on?</translation>
    </message>
    <message id="tessadocres-172">
        <source></source>
        <extracomment>NoConfigurationProperties. Box.</extracomment>
        <translation>The properties of this configuration can't be read.</translation>
    </message>
    <message id="tessadocres-173">
        <source></source>
        <extracomment>ConfigurationPropertiesError. Box. Value: reason.</extracomment>
        <translation>The properties of the configuration can't be shown. %s</translation>
    </message>
    <message id="tessadocres-174">
        <source></source>
        <extracomment>PropertiesOf. Status. Value: the document.</extracomment>
        <translation>Properties of %s</translation>
    </message>
    <message id="tessadocres-175">
        <source></source>
        <extracomment>NoProperties. Box.</extracomment>
        <translation>This document holds no properties that can be read.</translation>
    </message>
    <message id="tessadocres-176">
        <source></source>
        <extracomment>NoPropertiesOf. Status. Value: the document.</extracomment>
        <translation>The properties of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-177">
        <source></source>
        <extracomment>PropertiesLoadError. Box. Value: reason.</extracomment>
        <translation>The properties can't be read. %s</translation>
    </message>
    <message id="tessadocres-178">
        <source></source>
        <extracomment>PropertiesShowError. Box of the property pane. Value: reason.</extracomment>
        <translation>The document can't be shown. %s</translation>
    </message>
    <message id="tessadocres-179">
        <source></source>
        <extracomment>PropertyCreatedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Created by</translation>
    </message>
    <message id="tessadocres-180">
        <source></source>
        <extracomment>PropertyCreatedOn. Suggested name of a property.</extracomment>
        <translation>Created on</translation>
    </message>
    <message id="tessadocres-181">
        <source></source>
        <extracomment>PropertyDateCompleted. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Date completed</translation>
    </message>
    <message id="tessadocres-182">
        <source></source>
        <extracomment>PropertyDepartment. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Department</translation>
    </message>
    <message id="tessadocres-183">
        <source></source>
        <extracomment>PropertyDestination. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Destination</translation>
    </message>
    <message id="tessadocres-184">
        <source></source>
        <extracomment>PropertyDisposition. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Disposition</translation>
    </message>
    <message id="tessadocres-185">
        <source></source>
        <extracomment>PropertyDivision. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Division</translation>
    </message>
    <message id="tessadocres-186">
        <source></source>
        <extracomment>PropertyDocumentNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Document Number</translation>
    </message>
    <message id="tessadocres-187">
        <source></source>
        <extracomment>PropertyEditor. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Editor</translation>
    </message>
    <message id="tessadocres-188">
        <source></source>
        <extracomment>PropertyForwardTo. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Forward to</translation>
    </message>
    <message id="tessadocres-189">
        <source></source>
        <extracomment>PropertyGroup. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Group</translation>
    </message>
    <message id="tessadocres-190">
        <source></source>
        <extracomment>PropertyLanguage. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Language</translation>
    </message>
    <message id="tessadocres-191">
        <source></source>
        <extracomment>PropertyMailstop. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Mailstop</translation>
    </message>
    <message id="tessadocres-192">
        <source></source>
        <extracomment>PropertyMatter. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Matter</translation>
    </message>
    <message id="tessadocres-193">
        <source></source>
        <extracomment>PropertyOffice. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Office</translation>
    </message>
    <message id="tessadocres-194">
        <source></source>
        <extracomment>PropertyOwner. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Owner</translation>
    </message>
    <message id="tessadocres-195">
        <source></source>
        <extracomment>PropertyProject. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Project</translation>
    </message>
    <message id="tessadocres-196">
        <source></source>
        <extracomment>PropertyPublisher. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Publisher</translation>
    </message>
    <message id="tessadocres-197">
        <source></source>
        <extracomment>PropertyPurpose. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Purpose</translation>
    </message>
    <message id="tessadocres-198">
        <source></source>
        <extracomment>PropertyReceivedFrom. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Received from</translation>
    </message>
    <message id="tessadocres-199">
        <source></source>
        <extracomment>PropertyRecordedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Recorded by</translation>
    </message>
    <message id="tessadocres-200">
        <source></source>
        <extracomment>PropertyRecordedDate. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Recorded date</translation>
    </message>
    <message id="tessadocres-201">
        <source></source>
        <extracomment>PropertyReference. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Reference</translation>
    </message>
    <message id="tessadocres-202">
        <source></source>
        <extracomment>PropertySource. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Source</translation>
    </message>
    <message id="tessadocres-203">
        <source></source>
        <extracomment>PropertyTelephoneNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Telephone number</translation>
    </message>
    <message id="tessadocres-204">
        <source></source>
        <extracomment>PropertyTypist. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Typist</translation>
    </message>
    <message id="tessadocres-205">
        <source></source>
        <extracomment>Configuration. Label of the list of configurations in the property pane.</extracomment>
        <translation>Configuration</translation>
    </message>
    <message id="tessadocres-206">
        <source></source>
        <extracomment>Position. Title of the column with the position of a reference in its table.</extracomment>
        <translation>Position</translation>
    </message>
    <message id="tessadocres-207">
        <source></source>
        <extracomment>MenuRename. Menu entry of the tree and of the configurations, and label (a colon follows).</extracomment>
        <translation>Rename</translation>
    </message>
    <message id="tessadocres-208">
        <source></source>
        <extracomment>HolderPath. Title of the column of documents that use the target when it shows whole paths.</extracomment>
        <translation>Used in (path)</translation>
    </message>
    <message id="tessadocres-209">
        <source></source>
        <extracomment>ChooseReplacement. Title of the file dialog of a replacement.</extracomment>
        <translation>Choose the document that takes its place</translation>
    </message>
    <message id="tessadocres-210">
        <source></source>
        <extracomment>DocumentsToUpdate. Check box and frame of the rename pane around the list of documents to update.</extracomment>
        <translation>Documents that use it</translation>
    </message>
    <message id="tessadocres-211">
        <source></source>
        <extracomment>TargetCollides. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s can't be taken here. The document itself or one above it has this name, or it refers to a document above, or its references can't be checked.</translation>
    </message>
    <message id="tessadocres-213">
        <source></source>
        <extracomment>TargetTypeUnknown. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s is no name of a document. Give it the extension of a part, an assembly or a drawing.</translation>
    </message>
    <message id="tessadocres-214">
        <source></source>
        <extracomment>TargetUnchanged. Box when a new name or a replacement is refused.</extracomment>
        <translation>This is the document itself. Choose another one.</translation>
    </message>
    <message id="tessadocres-216">
        <source></source>
        <extracomment>TargetTypeDiffers. Box when a new name or a replacement is refused.</extracomment>
        <translation>The new document must be of the same type as the old one.</translation>
    </message>
    <message id="tessadocres-218">
        <source></source>
        <extracomment>TargetMissing. Box when a replacement is refused. Value: its path.</extracomment>
        <translation>The document %s does not exist. Choose one that exists.</translation>
    </message>
    <message id="tessadocres-219">
        <source></source>
        <extracomment>TargetExists. Box when a new name is refused.</extracomment>
        <translation>There is a file of this name already. Choose another name.</translation>
    </message>
    <message id="tessadocres-220">
        <source></source>
        <extracomment>TargetElsewhere. Box when a new name is refused.</extracomment>
        <translation>Enter a name without a folder. A document is renamed in its own folder.</translation>
    </message>
    <message id="tessadocres-221">
        <source></source>
        <extracomment>Renamed. Result of a renaming.</extracomment>
        <translation>Renamed</translation>
    </message>
    <message id="tessadocres-222">
        <source></source>
        <extracomment>Replaced. Result of a replacement.</extracomment>
        <translation>Replaced</translation>
    </message>
    <message id="tessadocres-223">
        <source></source>
        <extracomment>SearchingHolders. Status. Value: the folder.</extracomment>
        <translation>Looking for references in %s</translation>
    </message>
    <message id="tessadocres-225">
        <source></source>
        <extracomment>HolderIsReplacement. Box of a replacement. Values: document, new reference.</extracomment>
        <translation>The document %s has the same file name as its new reference %s. Its tick was taken away; apply again to go on without it.</translation>
    </message>
    <message id="tessadocres-227">
        <source></source>
        <extracomment>HolderHasNewName. Box of a renaming. Values: document, new name.</extracomment>
        <translation>The document %s has the same name as the new one, %s. Its tick was taken away; apply again to go on without it.</translation>
    </message>
    <message id="tessadocres-229">
        <source></source>
        <extracomment>NotRenamed. Box. Value: the new path.</extracomment>
        <translation>The document can't be renamed to %s. Check that you may write in its folder.</translation>
    </message>
    <message id="tessadocres-230">
        <source></source>
        <extracomment>NothingChanged. Status after a renaming that failed.</extracomment>
        <translation>Nothing was changed.</translation>
    </message>
    <message id="tessadocres-231">
        <source></source>
        <extracomment>RowFailedTip. Tool tip of a row. Value: reason.</extracomment>
        <translation>Not updated: %s</translation>
    </message>
    <message id="tessadocres-232">
        <source></source>
        <extracomment>RowFailed. Box. Value: the document.</extracomment>
        <translation>The document %s can't be updated. It keeps its old reference.</translation>
    </message>
    <message id="tessadocres-233">
        <source></source>
        <extracomment>ExportedUpdated. In an export: the row was updated.</extracomment>
        <translation>updated</translation>
    </message>
    <message id="tessadocres-234">
        <source></source>
        <extracomment>RowUpdatedTip. Tool tip of a row.</extracomment>
        <translation>Updated</translation>
    </message>
    <message id="tessadocres-235">
        <source></source>
        <extracomment>ExportedUnticked. In an export: the row is not ticked.</extracomment>
        <translation>No</translation>
    </message>
    <message id="tessadocres-236">
        <source></source>
        <extracomment>OpeningFrame. Frame of the setup pane.</extracomment>
        <translation>Opening documents</translation>
    </message>
    <message id="tessadocres-237">
        <source></source>
        <extracomment>UseSearchRules. Check box of the setup pane.</extracomment>
        <translation>Use &amp;search rules when documents are opened</translation>
    </message>
    <message id="tessadocres-238">
        <source></source>
        <extracomment>DisplayFrame. Frame of the setup pane.</extracomment>
        <translation>Display</translation>
    </message>
    <message id="tessadocres-239">
        <source></source>
        <extracomment>ShowDescription. Check box of the setup pane.</extracomment>
        <translation>Show the &amp;description above the panes</translation>
    </message>
    <message id="tessadocres-240">
        <source></source>
        <extracomment>FolderListsFrame. Frame of the setup pane.</extracomment>
        <translation>Named folder lists</translation>
    </message>
    <message id="tessadocres-241">
        <source></source>
        <extracomment>FolderListNames. Label of the list of names in the setup pane.</extracomment>
        <translation>Folder lists</translation>
    </message>
    <message id="tessadocres-242">
        <source></source>
        <extracomment>FolderListName. Label of the field with the name of a folder list.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-243">
        <source></source>
        <extracomment>FolderListFolders. Label of the folders of the list being edited.</extracomment>
        <translation>Folders of the list</translation>
    </message>
    <message id="tessadocres-244">
        <source></source>
        <extracomment>AddFolder. Button of the setup pane.</extracomment>
        <translation>Add &amp;folder...</translation>
    </message>
    <message id="tessadocres-245">
        <source></source>
        <extracomment>RemoveFolder. Button of the setup pane.</extracomment>
        <translation>Re&amp;move folder</translation>
    </message>
    <message id="tessadocres-246">
        <source></source>
        <extracomment>DeleteFolderList. Button of the setup pane.</extracomment>
        <translation>Dele&amp;te list</translation>
    </message>
    <message id="tessadocres-247">
        <source></source>
        <extracomment>MenuDelete. Menu entry of a configuration.</extracomment>
        <translation>&amp;Delete</translation>
    </message>
    <message id="tessadocres-248">
        <source></source>
        <extracomment>MoveUp. Button of the setup pane.</extracomment>
        <translation>Move &amp;up</translation>
    </message>
    <message id="tessadocres-249">
        <source></source>
        <extracomment>MoveDown. Button of the setup pane.</extracomment>
        <translation>Move dow&amp;n</translation>
    </message>
    <message id="tessadocres-250">
        <source></source>
        <extracomment>ClearFolders. Button of the setup pane.</extracomment>
        <translation>&amp;Clear folders</translation>
    </message>
    <message id="tessadocres-251">
        <source></source>
        <extracomment>HeaderTip. Tool tip of a list.</extracomment>
        <translation>Click the title to change between file names and whole paths.</translation>
    </message>
    <message id="tessadocres-252">
        <source></source>
        <extracomment>FolderListsTip. Tool tip of the button that drops down the folder lists.</extracomment>
        <translation>Offers the named folder lists of the setup.</translation>
    </message>
    <message id="tessadocres-253">
        <source></source>
        <extracomment>LookInTip. Tool tip of a field with folders.</extracomment>
        <translation>Folders, separated by ";". A blank in front of an entry stands for a named folder list.</translation>
    </message>
    <message id="tessadocres-254">
        <source></source>
        <extracomment>DocumentToFindTip. Tool tip of the field with the document whose uses are looked for.</extracomment>
        <translation>Name of the document, with or without folder and extension.</translation>
    </message>
    <message id="tessadocres-255">
        <source></source>
        <extracomment>DropTip. Tool tip of a field.</extracomment>
        <translation>Drop a document or a folder here.</translation>
    </message>
    <message id="tessadocres-256">
        <source></source>
        <extracomment>OptionNotSaved. Box of the setup pane.</extracomment>
        <translation>The option can't be saved. Check that you may write your settings.</translation>
    </message>
    <message id="tessadocres-257">
        <source></source>
        <extracomment>FolderListWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>for the folder list</translation>
    </message>
    <message id="tessadocres-258">
        <source></source>
        <extracomment>FolderListNotDeleted. Box. Value: its name.</extracomment>
        <translation>The folder list %s can't be deleted.</translation>
    </message>
    <message id="tessadocres-259">
        <source></source>
        <extracomment>FolderListNameWithBlank. Box of the setup pane.</extracomment>
        <translation>The name of a folder list must not hold a blank.</translation>
    </message>
    <message id="tessadocres-260">
        <source></source>
        <extracomment>FolderListSaved. Status. Value: its name.</extracomment>
        <translation>The folder list %s was saved.</translation>
    </message>
    <message id="tessadocres-261">
        <source></source>
        <extracomment>AddFolderList. Caption of the setup pane's apply button for a new folder list; for an existing one it reads "Change".</extracomment>
        <translation>Add</translation>
    </message>
    <message id="tessadocres-262">
        <source></source>
        <extracomment>SearchFolderTitle. Title of the folder dialog of the search pane. Value: what the folder is for.</extracomment>
        <translation>Document search: %s</translation>
    </message>
    <message id="tessadocres-263">
        <source></source>
        <extracomment>RuleAndOption. Option of the search pane: the rule must hold as well.</extracomment>
        <translation>&amp;And</translation>
    </message>
    <message id="tessadocres-264">
        <source></source>
        <extracomment>RuleOrOption. Option of the search pane: the rule may hold instead.</extracomment>
        <translation>O&amp;r</translation>
    </message>
    <message id="tessadocres-265">
        <source></source>
        <extracomment>RuleProperty. Title of the column of rules with the property.</extracomment>
        <translation>Property</translation>
    </message>
    <message id="tessadocres-266">
        <source></source>
        <extracomment>BrowseMore. Button that opens a file or folder dialog, beside another one with a different key.</extracomment>
        <translation>Bro&amp;wse...</translation>
    </message>
    <message id="tessadocres-267">
        <source></source>
        <extracomment>RuleCondition. Title of the column of rules with the condition.</extracomment>
        <translation>Condition</translation>
    </message>
    <message id="tessadocres-268">
        <source></source>
        <extracomment>RuleValue. Title of the column of rules with the value.</extracomment>
        <translation>Value</translation>
    </message>
    <message id="tessadocres-269">
        <source></source>
        <extracomment>AddRule. Button of the search pane.</extracomment>
        <translation>Add r&amp;ule</translation>
    </message>
    <message id="tessadocres-270">
        <source></source>
        <extracomment>FindNow. Caption of a search button at first. Captions are state: it must differ from "Stop".</extracomment>
        <translation>Find now</translation>
    </message>
    <message id="tessadocres-271">
        <source></source>
        <extracomment>DeleteRule. Button of the search pane.</extracomment>
        <translation>De&amp;lete rule</translation>
    </message>
    <message id="tessadocres-272">
        <source></source>
        <extracomment>NewSearch. Button of the search panes that empties all fields.</extracomment>
        <translation>&amp;New search</translation>
    </message>
    <message id="tessadocres-273">
        <source></source>
        <extracomment>SaveSearch. Button of the search pane.</extracomment>
        <translation>Save searc&amp;h...</translation>
    </message>
    <message id="tessadocres-274">
        <source></source>
        <extracomment>LoadSearch. Button of the search pane.</extracomment>
        <translation>Loa&amp;d search...</translation>
    </message>
    <message id="tessadocres-275">
        <source></source>
        <extracomment>WithSubfolders. Check box: search the folders below as well.</extracomment>
        <translation>With &amp;subfolders</translation>
    </message>
    <message id="tessadocres-276">
        <source></source>
        <extracomment>Rules. Frame of the search pane around the rules.</extracomment>
        <translation>Rules</translation>
    </message>
    <message id="tessadocres-277">
        <source></source>
        <extracomment>Results. Heading of the documents found.</extracomment>
        <translation>Results</translation>
    </message>
    <message id="tessadocres-278">
        <source></source>
        <extracomment>RuleConnective. Title of the column of rules with the connective.</extracomment>
        <translation>Link</translation>
    </message>
    <message id="tessadocres-279">
        <source></source>
        <extracomment>RuleOr. Connective of a search rule; also written to saved searches. No double quotes.</extracomment>
        <translation>OR</translation>
    </message>
    <message id="tessadocres-280">
        <source></source>
        <extracomment>RuleValueField. Label of the field with a rule's value.</extracomment>
        <translation>Value</translation>
    </message>
    <message id="tessadocres-281">
        <source></source>
        <extracomment>RulePropertyField. Label of the field with a rule's property.</extracomment>
        <translation>Property</translation>
    </message>
    <message id="tessadocres-282">
        <source></source>
        <extracomment>RuleConditionField. Label of the field with a rule's condition.</extracomment>
        <translation>Condition</translation>
    </message>
    <message id="tessadocres-283">
        <source></source>
        <extracomment>SearchFolders. Label of the folders of a search.</extracomment>
        <translation>Folders</translation>
    </message>
    <message id="tessadocres-284">
        <source></source>
        <extracomment>CreatedColumn. Title of a column.</extracomment>
        <translation>Created</translation>
    </message>
    <message id="tessadocres-285">
        <source></source>
        <extracomment>ModifiedColumn. Title of a column.</extracomment>
        <translation>Changed</translation>
    </message>
    <message id="tessadocres-286">
        <source></source>
        <extracomment>FolderColumn. Title of a column.</extracomment>
        <translation>Folder</translation>
    </message>
    <message id="tessadocres-287">
        <source></source>
        <extracomment>SavedSearchFilter. Filter of the dialogs for saved searches, as pairs of label and patterns.</extracomment>
        <translation>Saved searches (*.tdbs)|*.tdbs|All files (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-288">
        <source></source>
        <extracomment>SavedSearchExtension. Extension that a saved search gets when none is typed.</extracomment>
        <translation>tdbs</translation>
    </message>
    <message id="tessadocres-289">
        <source></source>
        <extracomment>SavedSearchError. Box.</extracomment>
        <translation>The saved search can't be read completely. Check that it is a saved search and that you may read it.</translation>
    </message>
    <message id="tessadocres-290">
        <source></source>
        <extracomment>SavedSearchExists. Question with the buttons OK and Cancel.</extracomment>
        <translation>There is a saved search of this name. Do you want to overwrite it?</translation>
    </message>
    <message id="tessadocres-291">
        <source></source>
        <extracomment>SearchSaved. Status.</extracomment>
        <translation>The search was saved.</translation>
    </message>
    <message id="tessadocres-292">
        <source></source>
        <extracomment>SearchLoaded. Status.</extracomment>
        <translation>The search was loaded.</translation>
    </message>
    <message id="tessadocres-293">
        <source></source>
        <extracomment>DocumentsFound. Status at the end of a search. Value: their number.</extracomment>
        <translation>Documents found: %s</translation>
    </message>
    <message id="tessadocres-294">
        <source></source>
        <extracomment>SearchStopped. Text of a progress label.</extracomment>
        <translation>The search was stopped.</translation>
    </message>
    <message id="tessadocres-295">
        <source></source>
        <extracomment>SearchingFolder. Status. Value: the folder.</extracomment>
        <translation>Searching %s</translation>
    </message>
    <message id="tessadocres-296">
        <source></source>
        <extracomment>IsExactly. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>is (exactly)</translation>
    </message>
    <message id="tessadocres-297">
        <source></source>
        <extracomment>IsNot. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>is not</translation>
    </message>
    <message id="tessadocres-298">
        <source></source>
        <extracomment>Contains. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>contains</translation>
    </message>
    <message id="tessadocres-299">
        <source></source>
        <extracomment>NotEqual. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>not =</translation>
    </message>
    <message id="tessadocres-300">
        <source></source>
        <extracomment>IsYes. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>is Yes</translation>
    </message>
    <message id="tessadocres-301">
        <source></source>
        <extracomment>IsNo. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>is No</translation>
    </message>
    <message id="tessadocres-302">
        <source></source>
        <extracomment>LastSavedBy. Label in the property pane and property of a search rule.</extracomment>
        <translation>Last saved by</translation>
    </message>
    <message id="tessadocres-303">
        <source></source>
        <extracomment>PropertyLastSaved. Property of a search rule.</extracomment>
        <translation>Last saved</translation>
    </message>
    <message id="tessadocres-304">
        <source></source>
        <extracomment>Created. Label in the property pane and property of a search rule.</extracomment>
        <translation>Created</translation>
    </message>
    <message id="tessadocres-305">
        <source></source>
        <extracomment>NumberNeeded. Box. Value: the condition.</extracomment>
        <translation>The condition "%s" needs a number. Enter one.</translation>
    </message>
    <message id="tessadocres-306">
        <source></source>
        <extracomment>Loading. Text of a progress label.</extracomment>
        <translation>Loading...</translation>
    </message>
    <message id="tessadocres-307">
        <source></source>
        <extracomment>NoPreview. Shown in place of the picture.</extracomment>
        <translation>This document holds no preview.</translation>
    </message>
    <message id="tessadocres-308">
        <source></source>
        <extracomment>ChooseFunction. Shown where there is no pane.</extracomment>
        <translation>Choose a function from the icon bar or the menus.</translation>
    </message>
    <message id="tessadocres-309">
        <source></source>
        <extracomment>OpenDocumentTitle. Title of the open dialog.</extracomment>
        <translation>Open document</translation>
    </message>
    <message id="tessadocres-310">
        <source></source>
        <extracomment>NodeMissing. Status. Value: the document.</extracomment>
        <translation>The document %s is missing.</translation>
    </message>
    <message id="tessadocres-311">
        <source></source>
        <extracomment>DocumentNotFound. Status. Value: the document.</extracomment>
        <translation>The document %s can't be found or opened.</translation>
    </message>
    <message id="tessadocres-312">
        <source></source>
        <extracomment>CircularNode. Text of a tree node whose document stands above it already. Value: the text so far, which ends in a blank.</extracomment>
        <translation>%s(circular)</translation>
    </message>
    <message id="tessadocres-313">
        <source></source>
        <extracomment>CircularReference. Box. Value: the document.</extracomment>
        <translation>The document %s refers to itself through its references.</translation>
    </message>
    <message id="tessadocres-314">
        <source></source>
        <extracomment>WalkError. Box. Values: document, reason.</extracomment>
        <translation>The references of %s can't be read. %s</translation>
    </message>
    <message id="tessadocres-315">
        <source></source>
        <extracomment>Rename. Menu entry and heading of the pane.</extracomment>
        <translation>Rename</translation>
    </message>
    <message id="tessadocres-316">
        <source></source>
        <extracomment>Copy. Menu entry and heading of the pane.</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="tessadocres-317">
        <source></source>
        <extracomment>Replace. Menu entry and heading of the pane.</extracomment>
        <translation>Replace</translation>
    </message>
    <message id="tessadocres-318">
        <source></source>
        <extracomment>PreviewError. Box. Value: the document.</extracomment>
        <translation>The preview of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-319">
        <source></source>
        <extracomment>FullScreenTip. Tool tip of the preview's check box.</extracomment>
        <translation>Shows one picture in the whole pane instead of a grid of the documents looked at.</translation>
    </message>
    <message id="tessadocres-320">
        <source></source>
        <extracomment>ClearPreviews. Menu entry of the preview.</extracomment>
        <translation>&amp;Clear pictures</translation>
    </message>
    <message id="tessadocres-321">
        <source></source>
        <extracomment>OpenInCad. Menu entry.</extracomment>
        <translation>Open in the CAD program</translation>
    </message>
    <message id="tessadocres-322">
        <source></source>
        <extracomment>CopyPath. Menu entry.</extracomment>
        <translation>Copy path</translation>
    </message>
    <message id="tessadocres-323">
        <source></source>
        <extracomment>ShowInFolder. Menu entry.</extracomment>
        <translation>Show in its folder</translation>
    </message>
    <message id="tessadocres-324">
        <source></source>
        <extracomment>ExpandAll. Menu entry of the tree.</extracomment>
        <translation>Expand all</translation>
    </message>
    <message id="tessadocres-326">
        <source></source>
        <extracomment>ReferenceName. Title of the column of references found when it shows file names.</extracomment>
        <translation>Reference</translation>
    </message>
    <message id="tessadocres-327">
        <source></source>
        <extracomment>ReferencePath. Title of the column of references found when it shows whole paths.</extracomment>
        <translation>Reference (path)</translation>
    </message>
    <message id="tessadocres-328">
        <source></source>
        <extracomment>FoldersNotFound. Box. Value: the folders, joined by ";".</extracomment>
        <translation>These folders were not found and were taken out: %s</translation>
    </message>
    <message id="tessadocres-329">
        <source></source>
        <extracomment>MenuSearchScope. Button that opens the search scope form.</extracomment>
        <translation>Search s&amp;cope...</translation>
    </message>
    <message id="tessadocres-331">
        <source></source>
        <extracomment>MenuReplace. Menu entry of the tree, title of the find and replace form, and label (a colon follows).</extracomment>
        <translation>Replace</translation>
    </message>
    <message id="tessadocres-332">
        <source></source>
        <extracomment>About. Menu entry and title of the about box.</extracomment>
        <translation>About Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-333">
        <source></source>
        <extracomment>VendorPage. Button of the about box that opens the maker's page in the browser.</extracomment>
        <translation>&amp;Web page</translation>
    </message>
    <message id="tessadocres-334">
        <source></source>
        <extracomment>AboutDescription. Line of the about box.</extracomment>
        <translation>The document manager of the Tessaforma CAD family</translation>
    </message>
    <message id="tessadocres-335">
        <source></source>
        <extracomment>Version. Line of the about box; a blank and the version number follow.</extracomment>
        <translation>Version</translation>
    </message>
    <message id="tessadocres-336">
        <source></source>
        <extracomment>Disclaimer. Line of the about box.</extracomment>
        <translation>This program comes without any warranty. Its licence tells the conditions of use.</translation>
    </message>
    <message id="tessadocres-337">
        <source></source>
        <extracomment>AddProperty. Caption of the button that adds a property. Captions are state: it must differ from "Change".</extracomment>
        <translation>Add</translation>
    </message>
    <message id="tessadocres-338">
        <source></source>
        <extracomment>RemoveProperty. Button of the property pane.</extracomment>
        <translation>Re&amp;move</translation>
    </message>
    <message id="tessadocres-339">
        <source></source>
        <extracomment>ValueYes. Value of a yes or no property; compared when it is written: it must differ from "No".</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="tessadocres-340">
        <source></source>
        <extracomment>ValueNo. Value of a yes or no property; compared when it is written: it must differ from "Yes".</extracomment>
        <translation>No</translation>
    </message>
    <message id="tessadocres-341">
        <source></source>
        <extracomment>NotLocked. Shown where the user of a lock stands.</extracomment>
        <translation>Not locked</translation>
    </message>
    <message id="tessadocres-342">
        <source></source>
        <extracomment>ToolbarRename. Toolbar button with the menu of rename, replace and copy.</extracomment>
        <translation>R&amp;ename</translation>
    </message>
    <message id="tessadocres-343">
        <source></source>
        <extracomment>ToolbarView. Toolbar button with the menu of the panes.</extracomment>
        <translation>&amp;View</translation>
    </message>
    <message id="tessadocres-344">
        <source></source>
        <extracomment>ToolbarOpen. Toolbar button with the menu of the ways to open a document.</extracomment>
        <translation>&amp;Open</translation>
    </message>
    <message id="tessadocres-345">
        <source></source>
        <extracomment>IconBarHeading. Heading above the icon bar.</extracomment>
        <translation>Functions</translation>
    </message>
    <message id="tessadocres-346">
        <source></source>
        <extracomment>LockedBy. Label in the property pane; the lock's user follows.</extracomment>
        <translation>Locked by</translation>
    </message>
    <message id="tessadocres-347">
        <source></source>
        <extracomment>FileName. Property of a search rule: the document's file name, compared with the property field. No double quotes.</extracomment>
        <translation>File name</translation>
    </message>
    <message id="tessadocres-348">
        <source></source>
        <extracomment>UseFullScreen. Check box of the preview: one picture in the whole pane.</extracomment>
        <translation>Show one &amp;picture</translation>
    </message>
    <message id="tessadocres-349">
        <source></source>
        <extracomment>OpenedDocuments. Heading of a list.</extracomment>
        <translation>Opened documents</translation>
    </message>
    <message id="tessadocres-350">
        <source></source>
        <extracomment>ExportedDone. In an export: the row was copied or updated.</extracomment>
        <translation>done</translation>
    </message>
    <message id="tessadocres-351">
        <source></source>
        <extracomment>YesToAll. Button of the question whether to create a folder.</extracomment>
        <translation>Yes to a&amp;ll</translation>
    </message>
    <message id="tessadocres-352">
        <source></source>
        <extracomment>CreateFolderQuestion. Question with the buttons Yes, Yes to all and No. Value: the folder.</extracomment>
        <translation>The folder %s does not exist. Do you want to create it?</translation>
    </message>
    <message id="tessadocres-353">
        <source></source>
        <extracomment>ParentNotOpenedTip. Tool tip of a parent document. Value: reason.</extracomment>
        <translation>Can't be opened: %s</translation>
    </message>
    <message id="tessadocres-354">
        <source></source>
        <extracomment>CopyRows. Status. Values: number of rows, number of missing documents.</extracomment>
        <translation>References: %s, missing: %s</translation>
    </message>
    <message id="tessadocres-355">
        <source></source>
        <extracomment>CheckingTargets. Text of a progress label.</extracomment>
        <translation>Checking the targets...</translation>
    </message>
    <message id="tessadocres-356">
        <source></source>
        <extracomment>CheckingTarget. Status. Value: the new name or replacement.</extracomment>
        <translation>Checking %s</translation>
    </message>
    <message id="tessadocres-357">
        <source></source>
        <extracomment>RenameDone. Status. Values: number of documents updated, number failed.</extracomment>
        <translation>Updated: %s, failed: %s</translation>
    </message>
    <message id="tessadocres-358">
        <source></source>
        <extracomment>UpdatingDocument. Status. Value: the document.</extracomment>
        <translation>Updating %s</translation>
    </message>
    <message id="tessadocres-359">
        <source></source>
        <extracomment>ReplaceWithLabel. Label in the rename pane; a colon follows.</extracomment>
        <translation>Replace with</translation>
    </message>
    <message id="tessadocres-360">
        <source></source>
        <extracomment>SearchFirstQuestion. Question with the buttons Yes, No and Cancel.</extracomment>
        <translation>The documents that use this one have not been looked for, so they would keep their old references. Look for them first?</translation>
    </message>
    <message id="tessadocres-361">
        <source></source>
        <extracomment>TickStays. Box when a row is ticked or cleared that must stay as it is.</extracomment>
        <translation>The tick of this row can't be changed: its document is read-only, or it is the parent document, which is always updated.</translation>
    </message>
    <message id="tessadocres-362">
        <source></source>
        <extracomment>PreviewOf. Status. Value: the document.</extracomment>
        <translation>Preview of %s</translation>
    </message>
    <message id="tessadocres-363">
        <source></source>
        <extracomment>NoDocument. Status.</extracomment>
        <translation>No document is open.</translation>
    </message>
    <message id="tessadocres-364">
        <source></source>
        <extracomment>SearchError. Box. Value: reason.</extracomment>
        <translation>The search ended early. %s</translation>
    </message>
    <message id="tessadocres-365">
        <source></source>
        <extracomment>TargetFolderReadOnly. Box. Value: the folder.</extracomment>
        <translation>The folder %s is read-only. Choose another one.</translation>
    </message>
    <message id="tessadocres-366">
        <source></source>
        <extracomment>CopyingTo. Status. Value: the target.</extracomment>
        <translation>Copying to %s</translation>
    </message>
    <message id="tessadocres-367">
        <source></source>
        <extracomment>ConfigurationLoadError. Box. Value: reason.</extracomment>
        <translation>The configurations can't be read. %s</translation>
    </message>
    <message id="tessadocres-368">
        <source></source>
        <extracomment>HyperlinkSaveError. Box. Value: reason.</extracomment>
        <translation>The hyperlinks can't be saved. %s</translation>
    </message>
    <message id="tessadocres-369">
        <source></source>
        <extracomment>HyperlinkCount. Status. Value: their number.</extracomment>
        <translation>Hyperlinks: %s</translation>
    </message>
    <message id="tessadocres-370">
        <source></source>
        <extracomment>OverwriteTitle. Title of a question.</extracomment>
        <translation>Overwrite file</translation>
    </message>
    <message id="tessadocres-371">
        <source></source>
        <extracomment>Kilobytes. Size of a file. Value: units of 1000 bytes.</extracomment>
        <translation>%s KB</translation>
    </message>
    <message id="tessadocres-372">
        <source></source>
        <extracomment>ExportError. Box. Value: reason.</extracomment>
        <translation>The spreadsheet can't be written. %s</translation>
    </message>
    <message id="tessadocres-373">
        <source></source>
        <extracomment>AccessInUse. Box. Value: the document.</extracomment>
        <translation>The document %s is in use by another program. Close it there and try again.</translation>
    </message>
    <message id="tessadocres-374">
        <source></source>
        <extracomment>AccessReadOnly. Box. Value: the document.</extracomment>
        <translation>The document %s is read-only. Take away its write protection and try again.</translation>
    </message>
    <message id="tessadocres-375">
        <source></source>
        <extracomment>AccessRefused. Box. Value: the document.</extracomment>
        <translation>The document %s can't be written. Check that it exists and that you may change it.</translation>
    </message>
    <message id="tessadocres-376">
        <source></source>
        <extracomment>MenuUndelete. Menu entry of a configuration that is marked as deleted.</extracomment>
        <translation>&amp;Undelete</translation>
    </message>
    <message id="tessadocres-377">
        <source></source>
        <extracomment>FoldersLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>Folders looked at: %s</translation>
    </message>
    <message id="tessadocres-378">
        <source></source>
        <extracomment>DocumentsLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>Documents looked at: %s</translation>
    </message>
    <message id="tessadocres-379">
        <source></source>
        <extracomment>FilesNotRead. Text of a progress label. Value: their number.</extracomment>
        <translation>Files that can't be read: %s</translation>
    </message>
    <message id="tessadocres-380">
        <source></source>
        <extracomment>LockedByOther. Box. Values: document, user.</extracomment>
        <translation>The document %s is locked by %s. Only this user can unlock it.</translation>
    </message>
    <message id="tessadocres-381">
        <source></source>
        <extracomment>Lock. Menu entry.</extracomment>
        <translation>Lock</translation>
    </message>
    <message id="tessadocres-382">
        <source></source>
        <extracomment>Unlock. Menu entry.</extracomment>
        <translation>Unlock</translation>
    </message>
    <message id="tessadocres-383">
        <source></source>
        <extracomment>OpenWebFolder. Menu entry and title of the dialog.</extracomment>
        <translation>Open from a web folder</translation>
    </message>
    <message id="tessadocres-394">
        <source></source>
        <extracomment>UseViewer. Check box of the setup pane.</extracomment>
        <translation>Show models in the &amp;3D viewer</translation>
    </message>
    <message id="tessadocres-400">
        <source></source>
        <extracomment>LoggingFrame. Frame of the setup pane.</extracomment>
        <translation>Performance log</translation>
    </message>
    <message id="tessadocres-401">
        <source></source>
        <extracomment>UseLogging. Check box of the setup pane.</extracomment>
        <translation>Send the performance &amp;log</translation>
    </message>
</context>
</TS>

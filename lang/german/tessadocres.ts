<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name></name>
    <message id="tessadocres-1">
        <source></source>
        <extracomment>ReplaceButton. Button of the find and replace form that replaces the hit; in the copy pane, the button that opens this form.</extracomment>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message id="tessadocres-2">
        <source></source>
        <extracomment>DocumentToFind. Label of the field with the document whose uses are looked for.</extracomment>
        <translation>Dokument</translation>
    </message>
    <message id="tessadocres-3">
        <source></source>
        <extracomment>CopyReferencesToo. Check box of the copy pane: copy the references of the document as well.</extracomment>
        <translation>Referenzen &amp;kopieren</translation>
    </message>
    <message id="tessadocres-4">
        <source></source>
        <extracomment>ClearAll. Button of the copy pane while all rows are ticked. The caption is the button's state: it must differ from "Select all".</extracomment>
        <translation>Alle abwählen</translation>
    </message>
    <message id="tessadocres-5">
        <source></source>
        <extracomment>CopyWord. Menu entry of the tree, title of a column, state of a parent row that is copied, and label (a colon follows). Compared with the state of a row: it must differ from "Update".</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="tessadocres-6">
        <source></source>
        <extracomment>Path. Title of the first column of a list until its long form is set.</extracomment>
        <translation>Pfad</translation>
    </message>
    <message id="tessadocres-7">
        <source></source>
        <extracomment>Refresh. Button that reads a list again.</extracomment>
        <translation>Ak&amp;tualisieren</translation>
    </message>
    <message id="tessadocres-8">
        <source></source>
        <extracomment>FileNameColumn. Title of the column of the copy list with the name of the file.</extracomment>
        <translation>Dateiname</translation>
    </message>
    <message id="tessadocres-9">
        <source></source>
        <extracomment>ParentDocuments. Check box and frame of the copy pane around the list of documents that use the source.</extracomment>
        <translation>Übergeordnete Dokumente</translation>
    </message>
    <message id="tessadocres-10">
        <source></source>
        <extracomment>Browse. Button that opens a file or folder dialog.</extracomment>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message id="tessadocres-11">
        <source></source>
        <extracomment>AsSuffix. Option of the copy pane: the text goes behind the names of the copies.</extracomment>
        <translation>Als &amp;Suffix</translation>
    </message>
    <message id="tessadocres-12">
        <source></source>
        <extracomment>AsPrefix. Option of the copy pane: the text goes in front of the names of the copies.</extracomment>
        <translation>Als &amp;Präfix</translation>
    </message>
    <message id="tessadocres-13">
        <source></source>
        <extracomment>TargetFolder. Label in the copy pane; a colon follows.</extracomment>
        <translation>Zielordner</translation>
    </message>
    <message id="tessadocres-14">
        <source></source>
        <extracomment>NewName. Label in the rename and copy panes; a colon follows.</extracomment>
        <translation>Neuer Name</translation>
    </message>
    <message id="tessadocres-15">
        <source></source>
        <extracomment>Apply. Button that carries out what the pane shows.</extracomment>
        <translation>An&amp;wenden</translation>
    </message>
    <message id="tessadocres-16">
        <source></source>
        <extracomment>Reset. Button that empties the list of documents found, or drops edits.</extracomment>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message id="tessadocres-17">
        <source></source>
        <extracomment>FindAgain. Caption of a search button after its first search. Captions are state: it must differ from "Stop".</extracomment>
        <translation>Erneut suchen</translation>
    </message>
    <message id="tessadocres-18">
        <source></source>
        <extracomment>LookIn. Label of a field with folders.</extracomment>
        <translation>Suchen in</translation>
    </message>
    <message id="tessadocres-19">
        <source></source>
        <extracomment>UpdateWord. Title of the column with the ticks, and state of a parent row that is brought up to date. It must differ from "Copy".</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message id="tessadocres-20">
        <source></source>
        <extracomment>UsedBy. Heading of a list of documents that use another.</extracomment>
        <translation>Verwendet von</translation>
    </message>
    <message id="tessadocres-21">
        <source></source>
        <extracomment>Relation. Title of the column that says how a document is used.</extracomment>
        <translation>Beziehung</translation>
    </message>
    <message id="tessadocres-22">
        <source></source>
        <extracomment>ReferenceTable. Title of the column that says in which of its two tables a document holds the reference, by number.</extracomment>
        <translation>Tabelle</translation>
    </message>
    <message id="tessadocres-23">
        <source></source>
        <extracomment>ReferenceNumber. Title of the column with the number of the reference in its table.</extracomment>
        <translation>Nummer</translation>
    </message>
    <message id="tessadocres-25">
        <source></source>
        <extracomment>MenuOpen. Menu entry that opens the document in the CAD program.</extracomment>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message id="tessadocres-26">
        <source></source>
        <extracomment>MenuExport. Menu entry that writes the list to a spreadsheet.</extracomment>
        <translation>Liste &amp;exportieren</translation>
    </message>
    <message id="tessadocres-27">
        <source></source>
        <extracomment>DocumentColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>Dokument</translation>
    </message>
    <message id="tessadocres-28">
        <source></source>
        <extracomment>FileColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>Datei</translation>
    </message>
    <message id="tessadocres-29">
        <source></source>
        <extracomment>SourcePath. Title of the copy list's column of sources when it shows whole paths.</extracomment>
        <translation>Quellpfad</translation>
    </message>
    <message id="tessadocres-30">
        <source></source>
        <extracomment>TargetPath. Title of a column of targets when it shows whole paths.</extracomment>
        <translation>Zielpfad</translation>
    </message>
    <message id="tessadocres-31">
        <source></source>
        <extracomment>HolderName. Title of the column of documents that use the target when it shows file names.</extracomment>
        <translation>Verwendet in</translation>
    </message>
    <message id="tessadocres-32">
        <source></source>
        <extracomment>TargetTip. Tool tip of the target of a parent document.</extracomment>
        <translation>Doppelklicken Sie, um ein anderes Ziel zu wählen.</translation>
    </message>
    <message id="tessadocres-33">
        <source></source>
        <extracomment>DefaultPrefix. What the copy pane puts in front of names at first; the blank at its end is part of it.</extracomment>
        <translation>Kopie von </translation>
    </message>
    <message id="tessadocres-34">
        <source></source>
        <extracomment>CopyTargetWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>Ziel der Kopien</translation>
    </message>
    <message id="tessadocres-35">
        <source></source>
        <extracomment>PartFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Teile (*.tfmprt, *.prt)|*.tfmprt;*.prt</translation>
    </message>
    <message id="tessadocres-36">
        <source></source>
        <extracomment>AssemblyFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Baugruppen (*.tfmasm, *.asm)|*.tfmasm;*.asm</translation>
    </message>
    <message id="tessadocres-37">
        <source></source>
        <extracomment>ChooseDocument. Title of the dialogs that choose a target file or the replacement of a missing file.</extracomment>
        <translation>Dokument wählen</translation>
    </message>
    <message id="tessadocres-38">
        <source></source>
        <extracomment>ParentReadOnly. Box when the row of a read-only parent document is ticked.</extracomment>
        <translation>Dieses Dokument ist schreibgeschützt und kann deshalb nicht aktualisiert werden. Heben Sie zuerst den Schreibschutz auf.</translation>
    </message>
    <message id="tessadocres-39">
        <source></source>
        <extracomment>DrawingFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Zeichnungen (*.tfmdrw, *.drw)|*.tfmdrw;*.drw</translation>
    </message>
    <message id="tessadocres-40">
        <source></source>
        <extracomment>Close. Button that closes a form.</extracomment>
        <translation>S&amp;chließen</translation>
    </message>
    <message id="tessadocres-41">
        <source></source>
        <extracomment>ExportDone. Status after an export. Value: number of lines.</extracomment>
        <translation>Die Liste wurde in die Tabelle geschrieben, Zeilen: %s</translation>
    </message>
    <message id="tessadocres-42">
        <source></source>
        <extracomment>ExportFailed. Status after an export that failed.</extracomment>
        <translation>Die Liste konnte nicht in die Tabelle geschrieben werden.</translation>
    </message>
    <message id="tessadocres-43">
        <source></source>
        <extracomment>ExportEmpty. Box when an empty list is exported.</extracomment>
        <translation>Die Liste ist leer; es gibt nichts zu exportieren.</translation>
    </message>
    <message id="tessadocres-44">
        <source></source>
        <extracomment>Status. Title of a column in an export, and suggested name of a property.</extracomment>
        <translation>Status</translation>
    </message>
    <message id="tessadocres-45">
        <source></source>
        <extracomment>TickedYes. In an export: the row is ticked.</extracomment>
        <translation>Ja</translation>
    </message>
    <message id="tessadocres-46">
        <source></source>
        <extracomment>TickedNo. In an export: the row is not ticked.</extracomment>
        <translation>Nein</translation>
    </message>
    <message id="tessadocres-47">
        <source></source>
        <extracomment>Ok. Button.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="tessadocres-48">
        <source></source>
        <extracomment>RowMissing. Box when a missing document of a list is opened.</extracomment>
        <translation>Dieses Dokument fehlt und kann nicht geöffnet werden.</translation>
    </message>
    <message id="tessadocres-49">
        <source></source>
        <extracomment>SelectAll. Button of the copy pane while not all rows are ticked. The caption is the button's state: it must differ from "Clear all".</extracomment>
        <translation>Alle auswählen</translation>
    </message>
    <message id="tessadocres-51">
        <source></source>
        <extracomment>FolderNotMade. Status, box and tool tip during a copy. Value: the folder.</extracomment>
        <translation>Der Ordner %s kann nicht angelegt werden. Prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
    <message id="tessadocres-52">
        <source></source>
        <extracomment>RenameLoadFailed. Box of the rename pane. Values: document, reason.</extracomment>
        <translation>Das Umbenennen des Dokuments %s kann nicht vorbereitet werden. %s</translation>
    </message>
    <message id="tessadocres-53">
        <source></source>
        <extracomment>Stop. Caption of a search button while it searches. Captions are state: it must differ from "Find now" and "Find again".</extracomment>
        <translation>Anhalten</translation>
    </message>
    <message id="tessadocres-55">
        <source></source>
        <extracomment>NotFound. Mark of something that is not there.</extracomment>
        <translation>Nicht gefunden</translation>
    </message>
    <message id="tessadocres-57">
        <source></source>
        <extracomment>NoTargetFile. Box when a copy is started without a target.</extracomment>
        <translation>Geben Sie die Datei an, die die Kopie erhalten soll.</translation>
    </message>
    <message id="tessadocres-58">
        <source></source>
        <extracomment>TargetOfOtherType. Box when the target's extension is of another type.</extracomment>
        <translation>Die Kopie muss vom selben Typ sein wie die Quelle: Teil, Baugruppe oder Zeichnung.</translation>
    </message>
    <message id="tessadocres-59">
        <source></source>
        <extracomment>SourceMissing. Question with the buttons Yes, No, No to all and Cancel before a copy. Value: the document.</extracomment>
        <translation>Das Dokument %s fehlt. Möchten Sie an seiner Stelle ein anderes wählen?</translation>
    </message>
    <message id="tessadocres-60">
        <source></source>
        <extracomment>Working. Text of a progress label.</extracomment>
        <translation>In Arbeit...</translation>
    </message>
    <message id="tessadocres-61">
        <source></source>
        <extracomment>Ready. Text of a progress label at the end.</extracomment>
        <translation>Bereit</translation>
    </message>
    <message id="tessadocres-62">
        <source></source>
        <extracomment>CopyCancelled. Status after Cancel at a question. Files copied so far stay.</extracomment>
        <translation>Das Kopieren wurde abgebrochen.</translation>
    </message>
    <message id="tessadocres-63">
        <source></source>
        <extracomment>CopyNotMade. Tool tip of a row that was left out of a copy.</extracomment>
        <translation>Nicht kopiert.</translation>
    </message>
    <message id="tessadocres-64">
        <source></source>
        <extracomment>TargetKept. Tool tip of a row whose target exists and was not to be overwritten.</extracomment>
        <translation>Nicht kopiert: Die vorhandene Datei wurde behalten.</translation>
    </message>
    <message id="tessadocres-65">
        <source></source>
        <extracomment>RowNotCopied. Tool tip of a row that was passed over.</extracomment>
        <translation>Nicht kopiert: Die Zeile ist nicht angekreuzt, oder ihr Dokument fehlt.</translation>
    </message>
    <message id="tessadocres-66">
        <source></source>
        <extracomment>CopyDone. Status at the end of a copy. Values: number of rows copied, number of rows failed.</extracomment>
        <translation>Kopiert: %s, fehlgeschlagen: %s</translation>
    </message>
    <message id="tessadocres-68">
        <source></source>
        <extracomment>CopyNotOpened. Question. Value: the copy.</extracomment>
        <translation>Die Referenzen der Kopie %s können nicht aktualisiert werden, da sie oder ihre Quelle sich nicht öffnen lässt. Mit den anderen Dokumenten fortfahren?</translation>
    </message>
    <message id="tessadocres-69">
        <source></source>
        <extracomment>NotUpdatedTip. Tool tip of a row after a failure. Value: reason.</extracomment>
        <translation>Nicht aktualisiert: %s</translation>
    </message>
    <message id="tessadocres-70">
        <source></source>
        <extracomment>NotSaved. Question. Values: document, reason.</extracomment>
        <translation>Das Dokument %s kann nicht gespeichert werden. %s Mit den anderen Dokumenten fortfahren?</translation>
    </message>
    <message id="tessadocres-72">
        <source></source>
        <extracomment>UpdatingReferences. Status. Value: the document.</extracomment>
        <translation>Aktualisieren der Referenzen in %s</translation>
    </message>
    <message id="tessadocres-73">
        <source></source>
        <extracomment>NotOpened. Question. Values: document, reason.</extracomment>
        <translation>Das Dokument %s kann nicht geöffnet werden, um seine Referenzen zu aktualisieren. %s Mit den anderen Dokumenten fortfahren?</translation>
    </message>
    <message id="tessadocres-74">
        <source></source>
        <extracomment>OverwriteQuestion. Question with the buttons Yes, No and Cancel. Value: the file.</extracomment>
        <translation>Die Datei %s ist bereits vorhanden. Möchten Sie sie überschreiben?</translation>
    </message>
    <message id="tessadocres-75">
        <source></source>
        <extracomment>SaveChanges. Button of the editors that writes the pending edits.</extracomment>
        <translation>Ä&amp;nderungen speichern</translation>
    </message>
    <message id="tessadocres-76">
        <source></source>
        <extracomment>HoldersFound. Status after a search for documents that use the source. Value: number of rows.</extracomment>
        <translation>Gefundene Referenzen: %s</translation>
    </message>
    <message id="tessadocres-77">
        <source></source>
        <extracomment>ParentRowTip. Tool tip of a row of the parent list.</extracomment>
        <translation>Klicken Sie auf das Kästchen, um zu bestimmen, was mit diesem Dokument geschieht: unverändert lassen, aktualisieren oder (bei einer Zeichnung) kopieren.</translation>
    </message>
    <message id="tessadocres-78">
        <source></source>
        <extracomment>ReadOnlyMark. Mark of a read-only document, put in front of its name in one list and behind it in another: a blank at both ends.</extracomment>
        <translation> (schreibgeschützt) </translation>
    </message>
    <message id="tessadocres-79">
        <source></source>
        <extracomment>Help. Toolbar button, menu entry and button of the description strip.</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="tessadocres-80">
        <source></source>
        <extracomment>SearchScope. Title of the form that says where and for what to search.</extracomment>
        <translation>Suchumfang</translation>
    </message>
    <message id="tessadocres-81">
        <source></source>
        <extracomment>PropertyName. Title of the column with the names of properties.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-82">
        <source></source>
        <extracomment>PropertyValue. Title of the column with the values of properties.</extracomment>
        <translation>Wert</translation>
    </message>
    <message id="tessadocres-83">
        <source></source>
        <extracomment>SearchScopeFrame. Frame of the search scope form.</extracomment>
        <translation>Suchen in</translation>
    </message>
    <message id="tessadocres-84">
        <source></source>
        <extracomment>FindMirrored. Check box: find parts that mirror the document.</extracomment>
        <translation>&amp;Gespiegelte Teile</translation>
    </message>
    <message id="tessadocres-85">
        <source></source>
        <extracomment>FolderLists. Button that drops down the named folder lists.</extracomment>
        <translation>Ordner&amp;listen</translation>
    </message>
    <message id="tessadocres-86">
        <source></source>
        <extracomment>RecentFolders. Heading of a list of folders.</extracomment>
        <translation>Zuletzt verwendete Ordner</translation>
    </message>
    <message id="tessadocres-87">
        <source></source>
        <extracomment>FindReferences. Check box: find plain references to the document.</extracomment>
        <translation>&amp;Referenzen</translation>
    </message>
    <message id="tessadocres-88">
        <source></source>
        <extracomment>FindInContext. Check box: find parts that refer to the assembly in context.</extracomment>
        <translation>Im &amp;Kontext</translation>
    </message>
    <message id="tessadocres-89">
        <source></source>
        <extracomment>Cancel. Button.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="tessadocres-90">
        <source></source>
        <extracomment>LookInWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>Suchort</translation>
    </message>
    <message id="tessadocres-91">
        <source></source>
        <extracomment>ChooseFolder. Title of the folder dialog. Value: what the folder is for.</extracomment>
        <translation>Ordner wählen: %s</translation>
    </message>
    <message id="tessadocres-92">
        <source></source>
        <extracomment>BecomesMark. Stands between an old and a new name that is not saved yet; never empty.</extracomment>
        <translation> -&gt; </translation>
    </message>
    <message id="tessadocres-93">
        <source></source>
        <extracomment>ConfigurationNameEmpty. Box when a configuration is given an empty name.</extracomment>
        <translation>Eine Konfiguration muss einen Namen haben.</translation>
    </message>
    <message id="tessadocres-94">
        <source></source>
        <extracomment>ConfigurationNameTaken. Box when a configuration is given a name that another one has.</extracomment>
        <translation>Es gibt bereits eine andere Konfiguration mit diesem Namen. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message id="tessadocres-95">
        <source></source>
        <extracomment>ConfigurationStays. Box when a configuration that must stay is deleted.</extracomment>
        <translation>Diese Konfiguration kann nicht gelöscht werden.</translation>
    </message>
    <message id="tessadocres-96">
        <source></source>
        <extracomment>ConfigurationsNotSaved. Status after a save that failed.</extracomment>
        <translation>Die Konfigurationen wurden nicht vollständig gespeichert.</translation>
    </message>
    <message id="tessadocres-97">
        <source></source>
        <extracomment>ConfigurationsSaved. Status.</extracomment>
        <translation>Die Konfigurationen wurden gespeichert.</translation>
    </message>
    <message id="tessadocres-98">
        <source></source>
        <extracomment>ConfigurationSaveError. Box. Value: reason.</extracomment>
        <translation>Die Konfigurationen können nicht gespeichert werden. %s</translation>
    </message>
    <message id="tessadocres-99">
        <source></source>
        <extracomment>ConfigurationsOf. Root of the configuration tree. Value: title of the document.</extracomment>
        <translation>Konfigurationen von %s</translation>
    </message>
    <message id="tessadocres-100">
        <source></source>
        <extracomment>ConfigurationCount. Status. Value: their number.</extracomment>
        <translation>Konfigurationen: %s</translation>
    </message>
    <message id="tessadocres-101">
        <source></source>
        <extracomment>ConfigurationsNotLoaded. Status. Value: the document.</extracomment>
        <translation>Die Konfigurationen von %s können nicht angezeigt werden.</translation>
    </message>
    <message id="tessadocres-103">
        <source></source>
        <extracomment>MatchCase. Check box of the find and replace form.</extracomment>
        <translation>&amp;Groß-/Kleinschreibung beachten</translation>
    </message>
    <message id="tessadocres-104">
        <source></source>
        <extracomment>FindNext. Button of the find and replace form.</extracomment>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message id="tessadocres-105">
        <source></source>
        <extracomment>ReplaceAll. Button of the find and replace form.</extracomment>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message id="tessadocres-106">
        <source></source>
        <extracomment>ReplaceWith. Label in the find and replace form.</extracomment>
        <translation>Ersetzen durch:</translation>
    </message>
    <message id="tessadocres-107">
        <source></source>
        <extracomment>FindWhat. Label in the find and replace form.</extracomment>
        <translation>Suchen nach:</translation>
    </message>
    <message id="tessadocres-108">
        <source></source>
        <extracomment>TextNotFound. Box of the find and replace form. Value: the text.</extracomment>
        <translation>Der Text „%s“ wurde nicht gefunden.</translation>
    </message>
    <message id="tessadocres-109">
        <source></source>
        <extracomment>FindUpwards. Check box of a find form: from the end to the start.</extracomment>
        <translation>Nach &amp;oben suchen</translation>
    </message>
    <message id="tessadocres-110">
        <source></source>
        <extracomment>HyperlinksSaved. Status.</extracomment>
        <translation>Die Hyperlinks wurden gespeichert.</translation>
    </message>
    <message id="tessadocres-111">
        <source></source>
        <extracomment>HyperlinksNotSaved. Status after a save that failed.</extracomment>
        <translation>Die Hyperlinks wurden nicht vollständig gespeichert.</translation>
    </message>
    <message id="tessadocres-113">
        <source></source>
        <extracomment>MenuOpenFile. Menu entry.</extracomment>
        <translation>Dokument ö&amp;ffnen...</translation>
    </message>
    <message id="tessadocres-114">
        <source></source>
        <extracomment>HyperlinksNotLoaded. Status. Value: the document.</extracomment>
        <translation>Die Hyperlinks von %s können nicht angezeigt werden.</translation>
    </message>
    <message id="tessadocres-115">
        <source></source>
        <extracomment>HyperlinkLoadError. Box. Value: reason.</extracomment>
        <translation>Die Hyperlinks können nicht gelesen werden. %s</translation>
    </message>
    <message id="tessadocres-116">
        <source></source>
        <extracomment>Size. Title of a column.</extracomment>
        <translation>Größe</translation>
    </message>
    <message id="tessadocres-117">
        <source></source>
        <extracomment>Type. Title of a column: the type of a file or property, or the table of a reference.</extracomment>
        <translation>Typ</translation>
    </message>
    <message id="tessadocres-118">
        <source></source>
        <extracomment>LastSaved. Label in the property pane and title of a column.</extracomment>
        <translation>Zuletzt gespeichert</translation>
    </message>
    <message id="tessadocres-119">
        <source></source>
        <extracomment>Attributes. Title of a column with the letters of the file's attributes.</extracomment>
        <translation>Attribute</translation>
    </message>
    <message id="tessadocres-120">
        <source></source>
        <extracomment>ReferenceListError. Box. Value: reason.</extracomment>
        <translation>Die Referenzen können nicht aufgelistet werden. %s</translation>
    </message>
    <message id="tessadocres-121">
        <source></source>
        <extracomment>DocumentNotReadable. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s kann nicht gelesen werden.</translation>
    </message>
    <message id="tessadocres-122">
        <source></source>
        <extracomment>AppTitle. Name of the program: title of all boxes.</extracomment>
        <translation>Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-123">
        <source></source>
        <extracomment>NoToAll. Button of a question with up to four buttons.</extracomment>
        <translation>Nein für &amp;alle</translation>
    </message>
    <message id="tessadocres-124">
        <source></source>
        <extracomment>No. Button of a question with up to four buttons.</extracomment>
        <translation>&amp;Nein</translation>
    </message>
    <message id="tessadocres-125">
        <source></source>
        <extracomment>Yes. Button of a question with up to four buttons.</extracomment>
        <translation>&amp;Ja</translation>
    </message>
    <message id="tessadocres-126">
        <source></source>
        <extracomment>Preview. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Vorschau</translation>
    </message>
    <message id="tessadocres-127">
        <source></source>
        <extracomment>Properties. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Eigenschaften</translation>
    </message>
    <message id="tessadocres-128">
        <source></source>
        <extracomment>References. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Referenzen</translation>
    </message>
    <message id="tessadocres-129">
        <source></source>
        <extracomment>WhereUsed. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Verwendung</translation>
    </message>
    <message id="tessadocres-130">
        <source></source>
        <extracomment>Search. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Suche</translation>
    </message>
    <message id="tessadocres-131">
        <source></source>
        <extracomment>Configurations. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Konfigurationen</translation>
    </message>
    <message id="tessadocres-132">
        <source></source>
        <extracomment>Hyperlinks. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Hyperlinks</translation>
    </message>
    <message id="tessadocres-133">
        <source></source>
        <extracomment>Setup. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="tessadocres-134">
        <source></source>
        <extracomment>Options. Heading of a group of options.</extracomment>
        <translation>Optionen</translation>
    </message>
    <message id="tessadocres-135">
        <source></source>
        <extracomment>PreviewHelp. Description strip of the preview.</extracomment>
        <translation>Zeigt das im Dokument gespeicherte Bild. Klicken Sie im Baum auf Dokumente, um ihre Bilder nebeneinander zu sehen.</translation>
    </message>
    <message id="tessadocres-136">
        <source></source>
        <extracomment>PropertiesHelp. Description strip of the property pane.</extracomment>
        <translation>Zeigt und ändert, was das Dokument über sich selbst aussagt: Zusammenfassung, benutzerdefinierte Eigenschaften und die Eigenschaften jeder Konfiguration.</translation>
    </message>
    <message id="tessadocres-137">
        <source></source>
        <extracomment>ReferencesHelp. Description strip of the reference pane.</extracomment>
        <translation>Listet das Dokument und alles auf, worauf es direkt verweist, mit Größe, Datum und Attributen jeder Datei.</translation>
    </message>
    <message id="tessadocres-138">
        <source></source>
        <extracomment>ConfigurationsHelp. Description strip of the configuration pane.</extracomment>
        <translation>Benennt die Konfigurationen des Dokuments um und löscht sie. Vor dem Speichern wird nichts geschrieben.</translation>
    </message>
    <message id="tessadocres-139">
        <source></source>
        <extracomment>WhereUsedHelp. Description strip of the where-used pane.</extracomment>
        <translation>Findet die Dokumente, die das Dokument verwenden, in den von Ihnen angegebenen Ordnern.</translation>
    </message>
    <message id="tessadocres-140">
        <source></source>
        <extracomment>SearchHelp. Description strip of the search pane.</extracomment>
        <translation>Findet Dokumente anhand von Regeln über ihre Eigenschaften, in den von Ihnen angegebenen Ordnern.</translation>
    </message>
    <message id="tessadocres-141">
        <source></source>
        <extracomment>RenameHelp. Description strip of the rename pane.</extracomment>
        <translation>Benennt das Dokument um oder setzt ein anderes an seine Stelle und aktualisiert die Dokumente, die es verwenden.</translation>
    </message>
    <message id="tessadocres-142">
        <source></source>
        <extracomment>CopyHelp. Description strip of the copy pane.</extracomment>
        <translation>Kopiert das Dokument mit seinen Referenzen. Die Kopien verweisen aufeinander; übergeordnete Dokumente können ebenfalls aktualisiert oder kopiert werden.</translation>
    </message>
    <message id="tessadocres-143">
        <source></source>
        <extracomment>HyperlinksHelp. Description strip of the hyperlink pane.</extracomment>
        <translation>Ändert die im Dokument gespeicherten Hyperlinks. Doppelklicken Sie auf einen Hyperlink, um ihn zu öffnen. Vor dem Speichern wird nichts geschrieben.</translation>
    </message>
    <message id="tessadocres-144">
        <source></source>
        <extracomment>SetupHelp. Description strip of the setup pane.</extracomment>
        <translation>Legt die Optionen fest und verwaltet die benannten Ordnerlisten, die bei Suchen angeboten werden.</translation>
    </message>
    <message id="tessadocres-145">
        <source></source>
        <extracomment>OpenFilter. Filter of the open dialog, as pairs of label and patterns.</extracomment>
        <translation>Alle Dokumente (*.tfmasm, *.tfmprt, *.tfmdrw, *.asm, *.prt)|*.tfmasm;*.tfmprt;*.tfmdrw;*.asm;*.prt|Baugruppen (*.tfmasm, *.asm)|*.tfmasm;*.asm|Teile (*.tfmprt, *.prt)|*.tfmprt;*.prt|Zeichnungen (*.tfmdrw)|*.tfmdrw</translation>
    </message>
    <message id="tessadocres-146">
        <source></source>
        <extracomment>OldFormat. Shown instead of a list, and as status.</extracomment>
        <translation>Dieses Dokument hat ein älteres Format. Speichern Sie es einmal im CAD-Programm, um es hier zu bearbeiten.</translation>
    </message>
    <message id="tessadocres-147">
        <source></source>
        <extracomment>RelationDefault. How a document uses another: every case that has no word of its own. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Referenz</translation>
    </message>
    <message id="tessadocres-148">
        <source></source>
        <extracomment>RelationAssembly. How a document uses another: a part that refers to an assembly. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Im Kontext</translation>
    </message>
    <message id="tessadocres-149">
        <source></source>
        <extracomment>RelationPart. How a document uses another: a part that refers to a part. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Gespiegelt</translation>
    </message>
    <message id="tessadocres-150">
        <source></source>
        <extracomment>Details. Button that shows the reason of a failure.</extracomment>
        <translation>&amp;Details</translation>
    </message>
    <message id="tessadocres-151">
        <source></source>
        <extracomment>CurrentDocument. Label of the document that a pane shows.</extracomment>
        <translation>Aktuelles Dokument</translation>
    </message>
    <message id="tessadocres-152">
        <source></source>
        <extracomment>SummaryTab. Tab of the property pane.</extracomment>
        <translation>Zusammenfassung</translation>
    </message>
    <message id="tessadocres-153">
        <source></source>
        <extracomment>CustomTab. Tab of the property pane.</extracomment>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message id="tessadocres-154">
        <source></source>
        <extracomment>ConfigurationTab. Tab of the property pane.</extracomment>
        <translation>Konfigurationsspezifisch</translation>
    </message>
    <message id="tessadocres-155">
        <source></source>
        <extracomment>NameField. Label of the field with a property's name.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-156">
        <source></source>
        <extracomment>ValueField. Label of the field with a property's value.</extracomment>
        <translation>Wert</translation>
    </message>
    <message id="tessadocres-157">
        <source></source>
        <extracomment>Comments. Label in the property pane and property of a search rule.</extracomment>
        <translation>Kommentare</translation>
    </message>
    <message id="tessadocres-158">
        <source></source>
        <extracomment>Keywords. Label in the property pane and property of a search rule.</extracomment>
        <translation>Schlüsselwörter</translation>
    </message>
    <message id="tessadocres-159">
        <source></source>
        <extracomment>Author. Label in the property pane and property of a search rule.</extracomment>
        <translation>Autor</translation>
    </message>
    <message id="tessadocres-160">
        <source></source>
        <extracomment>Subject. Label in the property pane and property of a search rule.</extracomment>
        <translation>Thema</translation>
    </message>
    <message id="tessadocres-161">
        <source></source>
        <extracomment>Title. Label in the property pane and property of a search rule.</extracomment>
        <translation>Titel</translation>
    </message>
    <message id="tessadocres-162">
        <source></source>
        <extracomment>TypeField. Label of the field with a property's type.</extracomment>
        <translation>Typ</translation>
    </message>
    <message id="tessadocres-163">
        <source></source>
        <extracomment>Change. Caption of the button that adds, when the name exists. Captions are state: it must differ from "Add".</extracomment>
        <translation>Ändern</translation>
    </message>
    <message id="tessadocres-164">
        <source></source>
        <extracomment>TypeText. Type of a property. The four types must differ.</extracomment>
        <translation>Text</translation>
    </message>
    <message id="tessadocres-165">
        <source></source>
        <extracomment>TypeDate. Type of a property. The four types must differ.</extracomment>
        <translation>Datum</translation>
    </message>
    <message id="tessadocres-166">
        <source></source>
        <extracomment>TypeNumber. Type of a property. The four types must differ.</extracomment>
        <translation>Zahl</translation>
    </message>
    <message id="tessadocres-167">
        <source></source>
        <extracomment>TypeYesNo. Type of a property. The four types must differ.</extracomment>
        <translation>Ja oder Nein</translation>
    </message>
    <message id="tessadocres-168">
        <source></source>
        <extracomment>ValueOfOtherType. Box when a property is added.</extracomment>
        <translation>Der Wert passt nicht zum Typ. Geben Sie dem Typ entsprechend ein Datum oder eine Zahl ein, oder wählen Sie einen anderen Typ.</translation>
    </message>
    <message id="tessadocres-169">
        <source></source>
        <extracomment>PropertiesNotOpened. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s kann nicht geöffnet werden; die Eigenschaften wurden deshalb nicht geschrieben. Ihre Änderungen stehen weiterhin im Bereich.</translation>
    </message>
    <message id="tessadocres-170">
        <source></source>
        <extracomment>PropertiesWriteError. Box. Value: reason.</extracomment>
        <translation>Die Eigenschaften können nicht geschrieben werden. %s</translation>
    </message>
    <message id="tessadocres-171">
        <source></source>
        <extracomment>LeaveConfiguration. Question with the buttons Yes and No.</extracomment>
        <translation>Die Eigenschaften der Konfiguration wurden geändert. Sollen sie vor dem Fortfahren geschrieben werden?</translation>
    </message>
    <message id="tessadocres-172">
        <source></source>
        <extracomment>NoConfigurationProperties. Box.</extracomment>
        <translation>Die Eigenschaften dieser Konfiguration können nicht gelesen werden.</translation>
    </message>
    <message id="tessadocres-173">
        <source></source>
        <extracomment>ConfigurationPropertiesError. Box. Value: reason.</extracomment>
        <translation>Die Eigenschaften der Konfiguration können nicht angezeigt werden. %s</translation>
    </message>
    <message id="tessadocres-174">
        <source></source>
        <extracomment>PropertiesOf. Status. Value: the document.</extracomment>
        <translation>Eigenschaften von %s</translation>
    </message>
    <message id="tessadocres-175">
        <source></source>
        <extracomment>NoProperties. Box.</extracomment>
        <translation>Dieses Dokument enthält keine lesbaren Eigenschaften.</translation>
    </message>
    <message id="tessadocres-176">
        <source></source>
        <extracomment>NoPropertiesOf. Status. Value: the document.</extracomment>
        <translation>Die Eigenschaften von %s können nicht angezeigt werden.</translation>
    </message>
    <message id="tessadocres-177">
        <source></source>
        <extracomment>PropertiesLoadError. Box. Value: reason.</extracomment>
        <translation>Die Eigenschaften können nicht gelesen werden. %s</translation>
    </message>
    <message id="tessadocres-178">
        <source></source>
        <extracomment>PropertiesShowError. Box of the property pane. Value: reason.</extracomment>
        <translation>Das Dokument kann nicht angezeigt werden. %s</translation>
    </message>
    <message id="tessadocres-179">
        <source></source>
        <extracomment>PropertyCreatedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Erstellt von</translation>
    </message>
    <message id="tessadocres-180">
        <source></source>
        <extracomment>PropertyCreatedOn. Suggested name of a property.</extracomment>
        <translation>Erstellt am</translation>
    </message>
    <message id="tessadocres-181">
        <source></source>
        <extracomment>PropertyDateCompleted. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Abschlussdatum</translation>
    </message>
    <message id="tessadocres-182">
        <source></source>
        <extracomment>PropertyDepartment. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Abteilung</translation>
    </message>
    <message id="tessadocres-183">
        <source></source>
        <extracomment>PropertyDestination. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Bestimmungsort</translation>
    </message>
    <message id="tessadocres-184">
        <source></source>
        <extracomment>PropertyDisposition. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Disposition</translation>
    </message>
    <message id="tessadocres-185">
        <source></source>
        <extracomment>PropertyDivision. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Geschäftsbereich</translation>
    </message>
    <message id="tessadocres-186">
        <source></source>
        <extracomment>PropertyDocumentNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Dokumentnummer</translation>
    </message>
    <message id="tessadocres-187">
        <source></source>
        <extracomment>PropertyEditor. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Bearbeiter</translation>
    </message>
    <message id="tessadocres-188">
        <source></source>
        <extracomment>PropertyForwardTo. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Weiterleiten an</translation>
    </message>
    <message id="tessadocres-189">
        <source></source>
        <extracomment>PropertyGroup. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Gruppe</translation>
    </message>
    <message id="tessadocres-190">
        <source></source>
        <extracomment>PropertyLanguage. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Sprache</translation>
    </message>
    <message id="tessadocres-191">
        <source></source>
        <extracomment>PropertyMailstop. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Poststelle</translation>
    </message>
    <message id="tessadocres-192">
        <source></source>
        <extracomment>PropertyMatter. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Angelegenheit</translation>
    </message>
    <message id="tessadocres-193">
        <source></source>
        <extracomment>PropertyOffice. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Büro</translation>
    </message>
    <message id="tessadocres-194">
        <source></source>
        <extracomment>PropertyOwner. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Besitzer</translation>
    </message>
    <message id="tessadocres-195">
        <source></source>
        <extracomment>PropertyProject. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Projekt</translation>
    </message>
    <message id="tessadocres-196">
        <source></source>
        <extracomment>PropertyPublisher. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Herausgeber</translation>
    </message>
    <message id="tessadocres-197">
        <source></source>
        <extracomment>PropertyPurpose. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Zweck</translation>
    </message>
    <message id="tessadocres-198">
        <source></source>
        <extracomment>PropertyReceivedFrom. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Empfangen von</translation>
    </message>
    <message id="tessadocres-199">
        <source></source>
        <extracomment>PropertyRecordedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Aufgenommen von</translation>
    </message>
    <message id="tessadocres-200">
        <source></source>
        <extracomment>PropertyRecordedDate. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Aufnahmedatum</translation>
    </message>
    <message id="tessadocres-201">
        <source></source>
        <extracomment>PropertyReference. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Bezug</translation>
    </message>
    <message id="tessadocres-202">
        <source></source>
        <extracomment>PropertySource. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Quelle</translation>
    </message>
    <message id="tessadocres-203">
        <source></source>
        <extracomment>PropertyTelephoneNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Telefonnummer</translation>
    </message>
    <message id="tessadocres-204">
        <source></source>
        <extracomment>PropertyTypist. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Schreibkraft</translation>
    </message>
    <message id="tessadocres-205">
        <source></source>
        <extracomment>Configuration. Label of the list of configurations in the property pane.</extracomment>
        <translation>Konfiguration</translation>
    </message>
    <message id="tessadocres-206">
        <source></source>
        <extracomment>Position. Title of the column with the position of a reference in its table.</extracomment>
        <translation>Position</translation>
    </message>
    <message id="tessadocres-207">
        <source></source>
        <extracomment>MenuRename. Menu entry of the tree and of the configurations, and label (a colon follows).</extracomment>
        <translation>Umbenennen</translation>
    </message>
    <message id="tessadocres-208">
        <source></source>
        <extracomment>HolderPath. Title of the column of documents that use the target when it shows whole paths.</extracomment>
        <translation>Verwendet in (Pfad)</translation>
    </message>
    <message id="tessadocres-209">
        <source></source>
        <extracomment>ChooseReplacement. Title of the file dialog of a replacement.</extracomment>
        <translation>Dokument wählen, das an die Stelle tritt</translation>
    </message>
    <message id="tessadocres-210">
        <source></source>
        <extracomment>DocumentsToUpdate. Check box and frame of the rename pane around the list of documents to update.</extracomment>
        <translation>Verwendende Dokumente</translation>
    </message>
    <message id="tessadocres-211">
        <source></source>
        <extracomment>TargetCollides. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s ist hier nicht möglich. Das Dokument selbst oder ein übergeordnetes trägt diesen Namen, oder es verweist auf ein übergeordnetes Dokument, oder seine Referenzen können nicht geprüft werden.</translation>
    </message>
    <message id="tessadocres-213">
        <source></source>
        <extracomment>TargetTypeUnknown. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s ist kein Name eines Dokuments. Geben Sie die Erweiterung eines Teils, einer Baugruppe oder einer Zeichnung an.</translation>
    </message>
    <message id="tessadocres-214">
        <source></source>
        <extracomment>TargetUnchanged. Box when a new name or a replacement is refused.</extracomment>
        <translation>Das ist das Dokument selbst. Wählen Sie ein anderes.</translation>
    </message>
    <message id="tessadocres-216">
        <source></source>
        <extracomment>TargetTypeDiffers. Box when a new name or a replacement is refused.</extracomment>
        <translation>Das neue Dokument muss vom selben Typ sein wie das alte.</translation>
    </message>
    <message id="tessadocres-218">
        <source></source>
        <extracomment>TargetMissing. Box when a replacement is refused. Value: its path.</extracomment>
        <translation>Das Dokument %s ist nicht vorhanden. Wählen Sie ein vorhandenes.</translation>
    </message>
    <message id="tessadocres-219">
        <source></source>
        <extracomment>TargetExists. Box when a new name is refused.</extracomment>
        <translation>Es gibt bereits eine Datei mit diesem Namen. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message id="tessadocres-220">
        <source></source>
        <extracomment>TargetElsewhere. Box when a new name is refused.</extracomment>
        <translation>Geben Sie einen Namen ohne Ordner ein. Ein Dokument wird in seinem eigenen Ordner umbenannt.</translation>
    </message>
    <message id="tessadocres-221">
        <source></source>
        <extracomment>Renamed. Result of a renaming.</extracomment>
        <translation>Umbenannt</translation>
    </message>
    <message id="tessadocres-222">
        <source></source>
        <extracomment>Replaced. Result of a replacement.</extracomment>
        <translation>Ersetzt</translation>
    </message>
    <message id="tessadocres-223">
        <source></source>
        <extracomment>SearchingHolders. Status. Value: the folder.</extracomment>
        <translation>Suche nach Referenzen in %s</translation>
    </message>
    <message id="tessadocres-225">
        <source></source>
        <extracomment>HolderIsReplacement. Box of a replacement. Values: document, new reference.</extracomment>
        <translation>Das Dokument %s hat denselben Dateinamen wie seine neue Referenz %s. Sein Häkchen wurde entfernt; klicken Sie erneut auf „Anwenden“, um ohne dieses Dokument fortzufahren.</translation>
    </message>
    <message id="tessadocres-227">
        <source></source>
        <extracomment>HolderHasNewName. Box of a renaming. Values: document, new name.</extracomment>
        <translation>Das Dokument %s hat denselben Namen wie das neue, %s. Sein Häkchen wurde entfernt; klicken Sie erneut auf „Anwenden“, um ohne dieses Dokument fortzufahren.</translation>
    </message>
    <message id="tessadocres-229">
        <source></source>
        <extracomment>NotRenamed. Box. Value: the new path.</extracomment>
        <translation>Das Dokument kann nicht in %s umbenannt werden. Prüfen Sie, ob Sie in diesem Ordner schreiben dürfen.</translation>
    </message>
    <message id="tessadocres-230">
        <source></source>
        <extracomment>NothingChanged. Status after a renaming that failed.</extracomment>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message id="tessadocres-231">
        <source></source>
        <extracomment>RowFailedTip. Tool tip of a row. Value: reason.</extracomment>
        <translation>Nicht aktualisiert: %s</translation>
    </message>
    <message id="tessadocres-232">
        <source></source>
        <extracomment>RowFailed. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s kann nicht aktualisiert werden. Es behält seine alte Referenz.</translation>
    </message>
    <message id="tessadocres-233">
        <source></source>
        <extracomment>ExportedUpdated. In an export: the row was updated.</extracomment>
        <translation>aktualisiert</translation>
    </message>
    <message id="tessadocres-234">
        <source></source>
        <extracomment>RowUpdatedTip. Tool tip of a row.</extracomment>
        <translation>Aktualisiert</translation>
    </message>
    <message id="tessadocres-235">
        <source></source>
        <extracomment>ExportedUnticked. In an export: the row is not ticked.</extracomment>
        <translation>Nein</translation>
    </message>
    <message id="tessadocres-236">
        <source></source>
        <extracomment>OpeningFrame. Frame of the setup pane.</extracomment>
        <translation>Öffnen von Dokumenten</translation>
    </message>
    <message id="tessadocres-237">
        <source></source>
        <extracomment>UseSearchRules. Check box of the setup pane.</extracomment>
        <translation>Beim Öffnen von Dokumenten &amp;Suchregeln verwenden</translation>
    </message>
    <message id="tessadocres-238">
        <source></source>
        <extracomment>DisplayFrame. Frame of the setup pane.</extracomment>
        <translation>Anzeige</translation>
    </message>
    <message id="tessadocres-239">
        <source></source>
        <extracomment>ShowDescription. Check box of the setup pane.</extracomment>
        <translation>Beschreibung über den Bereichen an&amp;zeigen</translation>
    </message>
    <message id="tessadocres-240">
        <source></source>
        <extracomment>FolderListsFrame. Frame of the setup pane.</extracomment>
        <translation>Benannte Ordnerlisten</translation>
    </message>
    <message id="tessadocres-241">
        <source></source>
        <extracomment>FolderListNames. Label of the list of names in the setup pane.</extracomment>
        <translation>Ordnerlisten</translation>
    </message>
    <message id="tessadocres-242">
        <source></source>
        <extracomment>FolderListName. Label of the field with the name of a folder list.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-243">
        <source></source>
        <extracomment>FolderListFolders. Label of the folders of the list being edited.</extracomment>
        <translation>Ordner der Liste</translation>
    </message>
    <message id="tessadocres-244">
        <source></source>
        <extracomment>AddFolder. Button of the setup pane.</extracomment>
        <translation>&amp;Ordner hinzufügen...</translation>
    </message>
    <message id="tessadocres-245">
        <source></source>
        <extracomment>RemoveFolder. Button of the setup pane.</extracomment>
        <translation>Ordner &amp;entfernen</translation>
    </message>
    <message id="tessadocres-246">
        <source></source>
        <extracomment>DeleteFolderList. Button of the setup pane.</extracomment>
        <translation>&amp;Liste löschen</translation>
    </message>
    <message id="tessadocres-247">
        <source></source>
        <extracomment>MenuDelete. Menu entry of a configuration.</extracomment>
        <translation>&amp;Löschen</translation>
    </message>
    <message id="tessadocres-248">
        <source></source>
        <extracomment>MoveUp. Button of the setup pane.</extracomment>
        <translation>&amp;Nach oben</translation>
    </message>
    <message id="tessadocres-249">
        <source></source>
        <extracomment>MoveDown. Button of the setup pane.</extracomment>
        <translation>Nach &amp;unten</translation>
    </message>
    <message id="tessadocres-250">
        <source></source>
        <extracomment>ClearFolders. Button of the setup pane.</extracomment>
        <translation>Lis&amp;te leeren</translation>
    </message>
    <message id="tessadocres-251">
        <source></source>
        <extracomment>HeaderTip. Tool tip of a list.</extracomment>
        <translation>Klicken Sie auf die Überschrift, um zwischen Dateinamen und ganzen Pfaden zu wechseln.</translation>
    </message>
    <message id="tessadocres-252">
        <source></source>
        <extracomment>FolderListsTip. Tool tip of the button that drops down the folder lists.</extracomment>
        <translation>Bietet die benannten Ordnerlisten der Einstellungen an.</translation>
    </message>
    <message id="tessadocres-253">
        <source></source>
        <extracomment>LookInTip. Tool tip of a field with folders.</extracomment>
        <translation>Ordner, durch „;“ getrennt. Ein Leerzeichen vor einem Eintrag bezeichnet eine benannte Ordnerliste.</translation>
    </message>
    <message id="tessadocres-254">
        <source></source>
        <extracomment>DocumentToFindTip. Tool tip of the field with the document whose uses are looked for.</extracomment>
        <translation>Name des Dokuments, mit oder ohne Ordner und Erweiterung.</translation>
    </message>
    <message id="tessadocres-255">
        <source></source>
        <extracomment>DropTip. Tool tip of a field.</extracomment>
        <translation>Legen Sie hier ein Dokument oder einen Ordner ab.</translation>
    </message>
    <message id="tessadocres-256">
        <source></source>
        <extracomment>OptionNotSaved. Box of the setup pane.</extracomment>
        <translation>Die Option kann nicht gespeichert werden. Prüfen Sie, ob Sie Ihre Einstellungen schreiben dürfen.</translation>
    </message>
    <message id="tessadocres-257">
        <source></source>
        <extracomment>FolderListWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>Ordnerliste</translation>
    </message>
    <message id="tessadocres-258">
        <source></source>
        <extracomment>FolderListNotDeleted. Box. Value: its name.</extracomment>
        <translation>Die Ordnerliste %s kann nicht gelöscht werden.</translation>
    </message>
    <message id="tessadocres-259">
        <source></source>
        <extracomment>FolderListNameWithBlank. Box of the setup pane.</extracomment>
        <translation>Der Name einer Ordnerliste darf kein Leerzeichen enthalten.</translation>
    </message>
    <message id="tessadocres-260">
        <source></source>
        <extracomment>FolderListSaved. Status. Value: its name.</extracomment>
        <translation>Die Ordnerliste %s wurde gespeichert.</translation>
    </message>
    <message id="tessadocres-261">
        <source></source>
        <extracomment>AddFolderList. Caption of the setup pane's apply button for a new folder list; for an existing one it reads "Change".</extracomment>
        <translation>Hinzufügen</translation>
    </message>
    <message id="tessadocres-262">
        <source></source>
        <extracomment>SearchFolderTitle. Title of the folder dialog of the search pane. Value: what the folder is for.</extracomment>
        <translation>Dokumentsuche: %s</translation>
    </message>
    <message id="tessadocres-263">
        <source></source>
        <extracomment>RuleAndOption. Option of the search pane: the rule must hold as well.</extracomment>
        <translation>&amp;Und</translation>
    </message>
    <message id="tessadocres-264">
        <source></source>
        <extracomment>RuleOrOption. Option of the search pane: the rule may hold instead.</extracomment>
        <translation>&amp;Oder</translation>
    </message>
    <message id="tessadocres-265">
        <source></source>
        <extracomment>RuleProperty. Title of the column of rules with the property.</extracomment>
        <translation>Eigenschaft</translation>
    </message>
    <message id="tessadocres-266">
        <source></source>
        <extracomment>BrowseMore. Button that opens a file or folder dialog, beside another one with a different key.</extracomment>
        <translation>Durc&amp;hsuchen...</translation>
    </message>
    <message id="tessadocres-267">
        <source></source>
        <extracomment>RuleCondition. Title of the column of rules with the condition.</extracomment>
        <translation>Bedingung</translation>
    </message>
    <message id="tessadocres-268">
        <source></source>
        <extracomment>RuleValue. Title of the column of rules with the value.</extracomment>
        <translation>Wert</translation>
    </message>
    <message id="tessadocres-269">
        <source></source>
        <extracomment>AddRule. Button of the search pane.</extracomment>
        <translation>Re&amp;gel hinzufügen</translation>
    </message>
    <message id="tessadocres-270">
        <source></source>
        <extracomment>FindNow. Caption of a search button at first. Captions are state: it must differ from "Stop".</extracomment>
        <translation>Jetzt suchen</translation>
    </message>
    <message id="tessadocres-271">
        <source></source>
        <extracomment>DeleteRule. Button of the search pane.</extracomment>
        <translation>&amp;Regel löschen</translation>
    </message>
    <message id="tessadocres-272">
        <source></source>
        <extracomment>NewSearch. Button of the search panes that empties all fields.</extracomment>
        <translation>&amp;Neue Suche</translation>
    </message>
    <message id="tessadocres-273">
        <source></source>
        <extracomment>SaveSearch. Button of the search pane.</extracomment>
        <translation>Suche &amp;speichern...</translation>
    </message>
    <message id="tessadocres-274">
        <source></source>
        <extracomment>LoadSearch. Button of the search pane.</extracomment>
        <translation>Su&amp;che laden...</translation>
    </message>
    <message id="tessadocres-275">
        <source></source>
        <extracomment>WithSubfolders. Check box: search the folders below as well.</extracomment>
        <translation>&amp;Mit Unterordnern</translation>
    </message>
    <message id="tessadocres-276">
        <source></source>
        <extracomment>Rules. Frame of the search pane around the rules.</extracomment>
        <translation>Regeln</translation>
    </message>
    <message id="tessadocres-277">
        <source></source>
        <extracomment>Results. Heading of the documents found.</extracomment>
        <translation>Ergebnisse</translation>
    </message>
    <message id="tessadocres-278">
        <source></source>
        <extracomment>RuleConnective. Title of the column of rules with the connective.</extracomment>
        <translation>Verknüpfung</translation>
    </message>
    <message id="tessadocres-279">
        <source></source>
        <extracomment>RuleOr. Connective of a search rule; also written to saved searches. No double quotes.</extracomment>
        <translation>ODER</translation>
    </message>
    <message id="tessadocres-280">
        <source></source>
        <extracomment>RuleValueField. Label of the field with a rule's value.</extracomment>
        <translation>Wert</translation>
    </message>
    <message id="tessadocres-281">
        <source></source>
        <extracomment>RulePropertyField. Label of the field with a rule's property.</extracomment>
        <translation>Eigenschaft</translation>
    </message>
    <message id="tessadocres-282">
        <source></source>
        <extracomment>RuleConditionField. Label of the field with a rule's condition.</extracomment>
        <translation>Bedingung</translation>
    </message>
    <message id="tessadocres-283">
        <source></source>
        <extracomment>SearchFolders. Label of the folders of a search.</extracomment>
        <translation>Ordner</translation>
    </message>
    <message id="tessadocres-284">
        <source></source>
        <extracomment>CreatedColumn. Title of a column.</extracomment>
        <translation>Erstellt</translation>
    </message>
    <message id="tessadocres-285">
        <source></source>
        <extracomment>ModifiedColumn. Title of a column.</extracomment>
        <translation>Geändert</translation>
    </message>
    <message id="tessadocres-286">
        <source></source>
        <extracomment>FolderColumn. Title of a column.</extracomment>
        <translation>Ordner</translation>
    </message>
    <message id="tessadocres-287">
        <source></source>
        <extracomment>SavedSearchFilter. Filter of the dialogs for saved searches, as pairs of label and patterns.</extracomment>
        <translation>Gespeicherte Suchen (*.tdbs)|*.tdbs|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-288">
        <source></source>
        <extracomment>SavedSearchExtension. Extension that a saved search gets when none is typed.</extracomment>
        <translation>tdbs</translation>
    </message>
    <message id="tessadocres-289">
        <source></source>
        <extracomment>SavedSearchError. Box.</extracomment>
        <translation>Die gespeicherte Suche kann nicht vollständig gelesen werden. Prüfen Sie, ob es eine gespeicherte Suche ist und ob Sie sie lesen dürfen.</translation>
    </message>
    <message id="tessadocres-290">
        <source></source>
        <extracomment>SavedSearchExists. Question with the buttons OK and Cancel.</extracomment>
        <translation>Es gibt bereits eine gespeicherte Suche mit diesem Namen. Möchten Sie sie überschreiben?</translation>
    </message>
    <message id="tessadocres-291">
        <source></source>
        <extracomment>SearchSaved. Status.</extracomment>
        <translation>Die Suche wurde gespeichert.</translation>
    </message>
    <message id="tessadocres-292">
        <source></source>
        <extracomment>SearchLoaded. Status.</extracomment>
        <translation>Die Suche wurde geladen.</translation>
    </message>
    <message id="tessadocres-293">
        <source></source>
        <extracomment>DocumentsFound. Status at the end of a search. Value: their number.</extracomment>
        <translation>Gefundene Dokumente: %s</translation>
    </message>
    <message id="tessadocres-294">
        <source></source>
        <extracomment>SearchStopped. Text of a progress label.</extracomment>
        <translation>Die Suche wurde angehalten.</translation>
    </message>
    <message id="tessadocres-295">
        <source></source>
        <extracomment>SearchingFolder. Status. Value: the folder.</extracomment>
        <translation>Durchsuchen von %s</translation>
    </message>
    <message id="tessadocres-296">
        <source></source>
        <extracomment>IsExactly. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>ist (genau)</translation>
    </message>
    <message id="tessadocres-297">
        <source></source>
        <extracomment>IsNot. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>ist nicht</translation>
    </message>
    <message id="tessadocres-298">
        <source></source>
        <extracomment>Contains. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>enthält</translation>
    </message>
    <message id="tessadocres-299">
        <source></source>
        <extracomment>NotEqual. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>nicht =</translation>
    </message>
    <message id="tessadocres-300">
        <source></source>
        <extracomment>IsYes. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>ist Ja</translation>
    </message>
    <message id="tessadocres-301">
        <source></source>
        <extracomment>IsNo. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>ist Nein</translation>
    </message>
    <message id="tessadocres-302">
        <source></source>
        <extracomment>LastSavedBy. Label in the property pane and property of a search rule.</extracomment>
        <translation>Zuletzt gespeichert von</translation>
    </message>
    <message id="tessadocres-303">
        <source></source>
        <extracomment>PropertyLastSaved. Property of a search rule.</extracomment>
        <translation>Zuletzt gespeichert</translation>
    </message>
    <message id="tessadocres-304">
        <source></source>
        <extracomment>Created. Label in the property pane and property of a search rule.</extracomment>
        <translation>Erstellt</translation>
    </message>
    <message id="tessadocres-305">
        <source></source>
        <extracomment>NumberNeeded. Box. Value: the condition.</extracomment>
        <translation>Die Bedingung „%s“ benötigt eine Zahl. Geben Sie eine ein.</translation>
    </message>
    <message id="tessadocres-306">
        <source></source>
        <extracomment>Loading. Text of a progress label.</extracomment>
        <translation>Wird geladen...</translation>
    </message>
    <message id="tessadocres-307">
        <source></source>
        <extracomment>NoPreview. Shown in place of the picture.</extracomment>
        <translation>Dieses Dokument enthält keine Vorschau.</translation>
    </message>
    <message id="tessadocres-308">
        <source></source>
        <extracomment>ChooseFunction. Shown where there is no pane.</extracomment>
        <translation>Wählen Sie eine Funktion aus der Funktionsleiste oder aus den Menüs.</translation>
    </message>
    <message id="tessadocres-309">
        <source></source>
        <extracomment>OpenDocumentTitle. Title of the open dialog.</extracomment>
        <translation>Dokument öffnen</translation>
    </message>
    <message id="tessadocres-310">
        <source></source>
        <extracomment>NodeMissing. Status. Value: the document.</extracomment>
        <translation>Das Dokument %s fehlt.</translation>
    </message>
    <message id="tessadocres-311">
        <source></source>
        <extracomment>DocumentNotFound. Status. Value: the document.</extracomment>
        <translation>Das Dokument %s kann nicht gefunden oder nicht geöffnet werden.</translation>
    </message>
    <message id="tessadocres-312">
        <source></source>
        <extracomment>CircularNode. Text of a tree node whose document stands above it already. Value: the text so far, which ends in a blank.</extracomment>
        <translation>%s(zirkulär)</translation>
    </message>
    <message id="tessadocres-313">
        <source></source>
        <extracomment>CircularReference. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s verweist über seine Referenzen auf sich selbst.</translation>
    </message>
    <message id="tessadocres-314">
        <source></source>
        <extracomment>WalkError. Box. Values: document, reason.</extracomment>
        <translation>Die Referenzen von %s können nicht gelesen werden. %s</translation>
    </message>
    <message id="tessadocres-315">
        <source></source>
        <extracomment>Rename. Menu entry and heading of the pane.</extracomment>
        <translation>Umbenennen</translation>
    </message>
    <message id="tessadocres-316">
        <source></source>
        <extracomment>Copy. Menu entry and heading of the pane.</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="tessadocres-317">
        <source></source>
        <extracomment>Replace. Menu entry and heading of the pane.</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message id="tessadocres-318">
        <source></source>
        <extracomment>PreviewError. Box. Value: the document.</extracomment>
        <translation>Die Vorschau von %s kann nicht angezeigt werden.</translation>
    </message>
    <message id="tessadocres-319">
        <source></source>
        <extracomment>FullScreenTip. Tool tip of the preview's check box.</extracomment>
        <translation>Zeigt ein Bild im ganzen Bereich statt eines Rasters der betrachteten Dokumente.</translation>
    </message>
    <message id="tessadocres-320">
        <source></source>
        <extracomment>ClearPreviews. Menu entry of the preview.</extracomment>
        <translation>&amp;Bilder entfernen</translation>
    </message>
    <message id="tessadocres-321">
        <source></source>
        <extracomment>OpenInCad. Menu entry.</extracomment>
        <translation>Im CAD-Programm öffnen</translation>
    </message>
    <message id="tessadocres-322">
        <source></source>
        <extracomment>CopyPath. Menu entry.</extracomment>
        <translation>Pfad kopieren</translation>
    </message>
    <message id="tessadocres-323">
        <source></source>
        <extracomment>ShowInFolder. Menu entry.</extracomment>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message id="tessadocres-324">
        <source></source>
        <extracomment>ExpandAll. Menu entry of the tree.</extracomment>
        <translation>Alles aufklappen</translation>
    </message>
    <message id="tessadocres-326">
        <source></source>
        <extracomment>ReferenceName. Title of the column of references found when it shows file names.</extracomment>
        <translation>Referenz</translation>
    </message>
    <message id="tessadocres-327">
        <source></source>
        <extracomment>ReferencePath. Title of the column of references found when it shows whole paths.</extracomment>
        <translation>Referenz (Pfad)</translation>
    </message>
    <message id="tessadocres-328">
        <source></source>
        <extracomment>FoldersNotFound. Box. Value: the folders, joined by ";".</extracomment>
        <translation>Diese Ordner wurden nicht gefunden und entfernt: %s</translation>
    </message>
    <message id="tessadocres-329">
        <source></source>
        <extracomment>MenuSearchScope. Button that opens the search scope form.</extracomment>
        <translation>Such&amp;umfang...</translation>
    </message>
    <message id="tessadocres-331">
        <source></source>
        <extracomment>MenuReplace. Menu entry of the tree, title of the find and replace form, and label (a colon follows).</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message id="tessadocres-332">
        <source></source>
        <extracomment>About. Menu entry and title of the about box.</extracomment>
        <translation>Über Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-333">
        <source></source>
        <extracomment>VendorPage. Button of the about box that opens the maker's page in the browser.</extracomment>
        <translation>&amp;Webseite</translation>
    </message>
    <message id="tessadocres-334">
        <source></source>
        <extracomment>AboutDescription. Line of the about box.</extracomment>
        <translation>Die Dokumentverwaltung der CAD-Familie Tessaforma</translation>
    </message>
    <message id="tessadocres-335">
        <source></source>
        <extracomment>Version. Line of the about box; a blank and the version number follow.</extracomment>
        <translation>Version</translation>
    </message>
    <message id="tessadocres-336">
        <source></source>
        <extracomment>Disclaimer. Line of the about box.</extracomment>
        <translation>Für dieses Programm wird keinerlei Gewähr übernommen. Die Nutzungsbedingungen stehen in seiner Lizenz.</translation>
    </message>
    <message id="tessadocres-337">
        <source></source>
        <extracomment>AddProperty. Caption of the button that adds a property. Captions are state: it must differ from "Change".</extracomment>
        <translation>Hinzufügen</translation>
    </message>
    <message id="tessadocres-338">
        <source></source>
        <extracomment>RemoveProperty. Button of the property pane.</extracomment>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message id="tessadocres-339">
        <source></source>
        <extracomment>ValueYes. Value of a yes or no property; compared when it is written: it must differ from "No".</extracomment>
        <translation>Ja</translation>
    </message>
    <message id="tessadocres-340">
        <source></source>
        <extracomment>ValueNo. Value of a yes or no property; compared when it is written: it must differ from "Yes".</extracomment>
        <translation>Nein</translation>
    </message>
    <message id="tessadocres-341">
        <source></source>
        <extracomment>NotLocked. Shown where the user of a lock stands.</extracomment>
        <translation>Nicht gesperrt</translation>
    </message>
    <message id="tessadocres-342">
        <source></source>
        <extracomment>ToolbarRename. Toolbar button with the menu of rename, replace and copy.</extracomment>
        <translation>Um&amp;benennen</translation>
    </message>
    <message id="tessadocres-343">
        <source></source>
        <extracomment>ToolbarView. Toolbar button with the menu of the panes.</extracomment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="tessadocres-344">
        <source></source>
        <extracomment>ToolbarOpen. Toolbar button with the menu of the ways to open a document.</extracomment>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message id="tessadocres-345">
        <source></source>
        <extracomment>IconBarHeading. Heading above the icon bar.</extracomment>
        <translation>Funktionen</translation>
    </message>
    <message id="tessadocres-346">
        <source></source>
        <extracomment>LockedBy. Label in the property pane; the lock's user follows.</extracomment>
        <translation>Gesperrt von</translation>
    </message>
    <message id="tessadocres-347">
        <source></source>
        <extracomment>FileName. Property of a search rule: the document's file name, compared with the property field. No double quotes.</extracomment>
        <translation>Dateiname</translation>
    </message>
    <message id="tessadocres-348">
        <source></source>
        <extracomment>UseFullScreen. Check box of the preview: one picture in the whole pane.</extracomment>
        <translation>Ein&amp;zelbild anzeigen</translation>
    </message>
    <message id="tessadocres-349">
        <source></source>
        <extracomment>OpenedDocuments. Heading of a list.</extracomment>
        <translation>Geöffnete Dokumente</translation>
    </message>
    <message id="tessadocres-350">
        <source></source>
        <extracomment>ExportedDone. In an export: the row was copied or updated.</extracomment>
        <translation>erledigt</translation>
    </message>
    <message id="tessadocres-351">
        <source></source>
        <extracomment>YesToAll. Button of the question whether to create a folder.</extracomment>
        <translation>Ja für a&amp;lle</translation>
    </message>
    <message id="tessadocres-352">
        <source></source>
        <extracomment>CreateFolderQuestion. Question with the buttons Yes, Yes to all and No. Value: the folder.</extracomment>
        <translation>Der Ordner %s ist nicht vorhanden. Möchten Sie ihn anlegen?</translation>
    </message>
    <message id="tessadocres-353">
        <source></source>
        <extracomment>ParentNotOpenedTip. Tool tip of a parent document. Value: reason.</extracomment>
        <translation>Kann nicht geöffnet werden: %s</translation>
    </message>
    <message id="tessadocres-354">
        <source></source>
        <extracomment>CopyRows. Status. Values: number of rows, number of missing documents.</extracomment>
        <translation>Referenzen: %s, fehlend: %s</translation>
    </message>
    <message id="tessadocres-355">
        <source></source>
        <extracomment>CheckingTargets. Text of a progress label.</extracomment>
        <translation>Ziele werden geprüft...</translation>
    </message>
    <message id="tessadocres-356">
        <source></source>
        <extracomment>CheckingTarget. Status. Value: the new name or replacement.</extracomment>
        <translation>Prüfen von %s</translation>
    </message>
    <message id="tessadocres-357">
        <source></source>
        <extracomment>RenameDone. Status. Values: number of documents updated, number failed.</extracomment>
        <translation>Aktualisiert: %s, fehlgeschlagen: %s</translation>
    </message>
    <message id="tessadocres-358">
        <source></source>
        <extracomment>UpdatingDocument. Status. Value: the document.</extracomment>
        <translation>Aktualisieren von %s</translation>
    </message>
    <message id="tessadocres-359">
        <source></source>
        <extracomment>ReplaceWithLabel. Label in the rename pane; a colon follows.</extracomment>
        <translation>Ersetzen durch</translation>
    </message>
    <message id="tessadocres-360">
        <source></source>
        <extracomment>SearchFirstQuestion. Question with the buttons Yes, No and Cancel.</extracomment>
        <translation>Die Dokumente, die dieses verwenden, wurden nicht gesucht; sie würden ihre alten Referenzen behalten. Zuerst nach ihnen suchen?</translation>
    </message>
    <message id="tessadocres-361">
        <source></source>
        <extracomment>TickStays. Box when a row is ticked or cleared that must stay as it is.</extracomment>
        <translation>Das Häkchen dieser Zeile kann nicht geändert werden: Das Dokument ist schreibgeschützt, oder es ist das übergeordnete Dokument, das immer aktualisiert wird.</translation>
    </message>
    <message id="tessadocres-362">
        <source></source>
        <extracomment>PreviewOf. Status. Value: the document.</extracomment>
        <translation>Vorschau von %s</translation>
    </message>
    <message id="tessadocres-363">
        <source></source>
        <extracomment>NoDocument. Status.</extracomment>
        <translation>Es ist kein Dokument geöffnet.</translation>
    </message>
    <message id="tessadocres-364">
        <source></source>
        <extracomment>SearchError. Box. Value: reason.</extracomment>
        <translation>Die Suche wurde vorzeitig beendet. %s</translation>
    </message>
    <message id="tessadocres-365">
        <source></source>
        <extracomment>TargetFolderReadOnly. Box. Value: the folder.</extracomment>
        <translation>Der Ordner %s ist schreibgeschützt. Wählen Sie einen anderen.</translation>
    </message>
    <message id="tessadocres-366">
        <source></source>
        <extracomment>CopyingTo. Status. Value: the target.</extracomment>
        <translation>Kopieren nach %s</translation>
    </message>
    <message id="tessadocres-367">
        <source></source>
        <extracomment>ConfigurationLoadError. Box. Value: reason.</extracomment>
        <translation>Die Konfigurationen können nicht gelesen werden. %s</translation>
    </message>
    <message id="tessadocres-368">
        <source></source>
        <extracomment>HyperlinkSaveError. Box. Value: reason.</extracomment>
        <translation>Die Hyperlinks können nicht gespeichert werden. %s</translation>
    </message>
    <message id="tessadocres-369">
        <source></source>
        <extracomment>HyperlinkCount. Status. Value: their number.</extracomment>
        <translation>Hyperlinks: %s</translation>
    </message>
    <message id="tessadocres-370">
        <source></source>
        <extracomment>OverwriteTitle. Title of a question.</extracomment>
        <translation>Datei überschreiben</translation>
    </message>
    <message id="tessadocres-371">
        <source></source>
        <extracomment>Kilobytes. Size of a file. Value: units of 1000 bytes.</extracomment>
        <translation>%s KB</translation>
    </message>
    <message id="tessadocres-372">
        <source></source>
        <extracomment>ExportError. Box. Value: reason.</extracomment>
        <translation>Die Tabelle kann nicht geschrieben werden. %s</translation>
    </message>
    <message id="tessadocres-373">
        <source></source>
        <extracomment>AccessInUse. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s wird von einem anderen Programm verwendet. Schließen Sie es dort, und versuchen Sie es erneut.</translation>
    </message>
    <message id="tessadocres-374">
        <source></source>
        <extracomment>AccessReadOnly. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s ist schreibgeschützt. Heben Sie den Schreibschutz auf, und versuchen Sie es erneut.</translation>
    </message>
    <message id="tessadocres-375">
        <source></source>
        <extracomment>AccessRefused. Box. Value: the document.</extracomment>
        <translation>Das Dokument %s kann nicht geschrieben werden. Prüfen Sie, ob es vorhanden ist und ob Sie es ändern dürfen.</translation>
    </message>
    <message id="tessadocres-376">
        <source></source>
        <extracomment>MenuUndelete. Menu entry of a configuration that is marked as deleted.</extracomment>
        <translation>Löschen &amp;rückgängig</translation>
    </message>
    <message id="tessadocres-377">
        <source></source>
        <extracomment>FoldersLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>Durchsuchte Ordner: %s</translation>
    </message>
    <message id="tessadocres-378">
        <source></source>
        <extracomment>DocumentsLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>Durchsuchte Dokumente: %s</translation>
    </message>
    <message id="tessadocres-379">
        <source></source>
        <extracomment>FilesNotRead. Text of a progress label. Value: their number.</extracomment>
        <translation>Nicht lesbare Dateien: %s</translation>
    </message>
    <message id="tessadocres-380">
        <source></source>
        <extracomment>LockedByOther. Box. Values: document, user.</extracomment>
        <translation>Das Dokument %s ist von %s gesperrt. Nur dieser Benutzer kann es entsperren.</translation>
    </message>
    <message id="tessadocres-381">
        <source></source>
        <extracomment>Lock. Menu entry.</extracomment>
        <translation>Sperren</translation>
    </message>
    <message id="tessadocres-382">
        <source></source>
        <extracomment>Unlock. Menu entry.</extracomment>
        <translation>Entsperren</translation>
    </message>
    <message id="tessadocres-383">
        <source></source>
        <extracomment>OpenWebFolder. Menu entry and title of the dialog.</extracomment>
        <translation>Aus einem Webordner öffnen</translation>
    </message>
    <message id="tessadocres-394">
        <source></source>
        <extracomment>UseViewer. Check box of the setup pane.</extracomment>
        <translation>Modelle im &amp;3D-Viewer anzeigen</translation>
    </message>
    <message id="tessadocres-400">
        <source></source>
        <extracomment>LoggingFrame. Frame of the setup pane.</extracomment>
        <translation>Leistungsprotokoll</translation>
    </message>
    <message id="tessadocres-401">
        <source></source>
        <extracomment>UseLogging. Check box of the setup pane.</extracomment>
        <translation>Leistungs&amp;protokoll senden</translation>
    </message>
</context>
</TS>

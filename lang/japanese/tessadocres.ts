<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name></name>
    <message id="tessadocres-1">
        <source></source>
        <extracomment>ReplaceButton. Button of the find and replace form that replaces the hit; in the copy pane, the button that opens this form.</extracomment>
        <translation>置換(&amp;P)</translation>
    </message>
    <message id="tessadocres-2">
        <source></source>
        <extracomment>DocumentToFind. Label of the field with the document whose uses are looked for.</extracomment>
        <translation>ドキュメント</translation>
    </message>
    <message id="tessadocres-3">
        <source></source>
        <extracomment>CopyReferencesToo. Check box of the copy pane: copy the references of the document as well.</extracomment>
        <translation>参照もコピー(&amp;F)</translation>
    </message>
    <message id="tessadocres-4">
        <source></source>
        <extracomment>ClearAll. Button of the copy pane while all rows are ticked. The caption is the button's state: it must differ from "Select all".</extracomment>
        <translation>すべて解除</translation>
    </message>
    <message id="tessadocres-5">
        <source></source>
        <extracomment>CopyWord. Menu entry of the tree, title of a column, state of a parent row that is copied, and label (a colon follows). Compared with the state of a row: it must differ from "Update".</extracomment>
        <translation>コピー</translation>
    </message>
    <message id="tessadocres-6">
        <source></source>
        <extracomment>Path. Title of the first column of a list until its long form is set.</extracomment>
        <translation>パス</translation>
    </message>
    <message id="tessadocres-7">
        <source></source>
        <extracomment>Refresh. Button that reads a list again.</extracomment>
        <translation>最新の情報に更新(&amp;F)</translation>
    </message>
    <message id="tessadocres-8">
        <source></source>
        <extracomment>FileNameColumn. Title of the column of the copy list with the name of the file.</extracomment>
        <translation>ファイル名</translation>
    </message>
    <message id="tessadocres-9">
        <source></source>
        <extracomment>ParentDocuments. Check box and frame of the copy pane around the list of documents that use the source.</extracomment>
        <translation>親ドキュメント</translation>
    </message>
    <message id="tessadocres-10">
        <source></source>
        <extracomment>Browse. Button that opens a file or folder dialog.</extracomment>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message id="tessadocres-11">
        <source></source>
        <extracomment>AsSuffix. Option of the copy pane: the text goes behind the names of the copies.</extracomment>
        <translation>接尾辞として付加(&amp;U)</translation>
    </message>
    <message id="tessadocres-12">
        <source></source>
        <extracomment>AsPrefix. Option of the copy pane: the text goes in front of the names of the copies.</extracomment>
        <translation>接頭辞として付加(&amp;X)</translation>
    </message>
    <message id="tessadocres-13">
        <source></source>
        <extracomment>TargetFolder. Label in the copy pane; a colon follows.</extracomment>
        <translation>コピー先フォルダー</translation>
    </message>
    <message id="tessadocres-14">
        <source></source>
        <extracomment>NewName. Label in the rename and copy panes; a colon follows.</extracomment>
        <translation>新しい名前</translation>
    </message>
    <message id="tessadocres-15">
        <source></source>
        <extracomment>Apply. Button that carries out what the pane shows.</extracomment>
        <translation>適用(&amp;A)</translation>
    </message>
    <message id="tessadocres-16">
        <source></source>
        <extracomment>Reset. Button that empties the list of documents found, or drops edits.</extracomment>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message id="tessadocres-17">
        <source></source>
        <extracomment>FindAgain. Caption of a search button after its first search. Captions are state: it must differ from "Stop".</extracomment>
        <translation>再検索</translation>
    </message>
    <message id="tessadocres-18">
        <source></source>
        <extracomment>LookIn. Label of a field with folders.</extracomment>
        <translation>検索場所</translation>
    </message>
    <message id="tessadocres-19">
        <source></source>
        <extracomment>UpdateWord. Title of the column with the ticks, and state of a parent row that is brought up to date. It must differ from "Copy".</extracomment>
        <translation>更新</translation>
    </message>
    <message id="tessadocres-20">
        <source></source>
        <extracomment>UsedBy. Heading of a list of documents that use another.</extracomment>
        <translation>使用元</translation>
    </message>
    <message id="tessadocres-21">
        <source></source>
        <extracomment>Relation. Title of the column that says how a document is used.</extracomment>
        <translation>関係</translation>
    </message>
    <message id="tessadocres-22">
        <source></source>
        <extracomment>ReferenceTable. Title of the column that says in which of its two tables a document holds the reference, by number.</extracomment>
        <translation>テーブル</translation>
    </message>
    <message id="tessadocres-23">
        <source></source>
        <extracomment>ReferenceNumber. Title of the column with the number of the reference in its table.</extracomment>
        <translation>番号</translation>
    </message>
    <message id="tessadocres-25">
        <source></source>
        <extracomment>MenuOpen. Menu entry that opens the document in the CAD program.</extracomment>
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="tessadocres-26">
        <source></source>
        <extracomment>MenuExport. Menu entry that writes the list to a spreadsheet.</extracomment>
        <translation>リストをエクスポート(&amp;E)</translation>
    </message>
    <message id="tessadocres-27">
        <source></source>
        <extracomment>DocumentColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>ドキュメント</translation>
    </message>
    <message id="tessadocres-28">
        <source></source>
        <extracomment>FileColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>ファイル</translation>
    </message>
    <message id="tessadocres-29">
        <source></source>
        <extracomment>SourcePath. Title of the copy list's column of sources when it shows whole paths.</extracomment>
        <translation>コピー元のパス</translation>
    </message>
    <message id="tessadocres-30">
        <source></source>
        <extracomment>TargetPath. Title of a column of targets when it shows whole paths.</extracomment>
        <translation>コピー先のパス</translation>
    </message>
    <message id="tessadocres-31">
        <source></source>
        <extracomment>HolderName. Title of the column of documents that use the target when it shows file names.</extracomment>
        <translation>使用先</translation>
    </message>
    <message id="tessadocres-32">
        <source></source>
        <extracomment>TargetTip. Tool tip of the target of a parent document.</extracomment>
        <translation>ダブルクリックすると、別のコピー先を選択できます。</translation>
    </message>
    <message id="tessadocres-33">
        <source></source>
        <extracomment>DefaultPrefix. What the copy pane puts in front of names at first; the blank at its end is part of it.</extracomment>
        <translation>コピー </translation>
    </message>
    <message id="tessadocres-34">
        <source></source>
        <extracomment>CopyTargetWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>コピー先</translation>
    </message>
    <message id="tessadocres-35">
        <source></source>
        <extracomment>PartFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>部品 (*.tfmprt, *.prt)|*.tfmprt;*.prt</translation>
    </message>
    <message id="tessadocres-36">
        <source></source>
        <extracomment>AssemblyFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>アセンブリ (*.tfmasm, *.asm)|*.tfmasm;*.asm</translation>
    </message>
    <message id="tessadocres-37">
        <source></source>
        <extracomment>ChooseDocument. Title of the dialogs that choose a target file or the replacement of a missing file.</extracomment>
        <translation>ドキュメントの選択</translation>
    </message>
    <message id="tessadocres-38">
        <source></source>
        <extracomment>ParentReadOnly. Box when the row of a read-only parent document is ticked.</extracomment>
        <translation>このドキュメントは読み取り専用のため、更新できません。先に書き込み保護を解除してください。</translation>
    </message>
    <message id="tessadocres-39">
        <source></source>
        <extracomment>DrawingFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>図面 (*.tfmdrw, *.drw)|*.tfmdrw;*.drw</translation>
    </message>
    <message id="tessadocres-40">
        <source></source>
        <extracomment>Close. Button that closes a form.</extracomment>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message id="tessadocres-41">
        <source></source>
        <extracomment>ExportDone. Status after an export. Value: number of lines.</extracomment>
        <translation>リストをスプレッドシートに書き込みました。行数: %s</translation>
    </message>
    <message id="tessadocres-42">
        <source></source>
        <extracomment>ExportFailed. Status after an export that failed.</extracomment>
        <translation>リストをスプレッドシートに書き込めませんでした。</translation>
    </message>
    <message id="tessadocres-43">
        <source></source>
        <extracomment>ExportEmpty. Box when an empty list is exported.</extracomment>
        <translation>リストが空のため、エクスポートするものがありません。</translation>
    </message>
    <message id="tessadocres-44">
        <source></source>
        <extracomment>Status. Title of a column in an export, and suggested name of a property.</extracomment>
        <translation>状態</translation>
    </message>
    <message id="tessadocres-45">
        <source></source>
        <extracomment>TickedYes. In an export: the row is ticked.</extracomment>
        <translation>はい</translation>
    </message>
    <message id="tessadocres-46">
        <source></source>
        <extracomment>TickedNo. In an export: the row is not ticked.</extracomment>
        <translation>いいえ</translation>
    </message>
    <message id="tessadocres-47">
        <source></source>
        <extracomment>Ok. Button.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="tessadocres-48">
        <source></source>
        <extracomment>RowMissing. Box when a missing document of a list is opened.</extracomment>
        <translation>このドキュメントは見つからないため、開けません。</translation>
    </message>
    <message id="tessadocres-49">
        <source></source>
        <extracomment>SelectAll. Button of the copy pane while not all rows are ticked. The caption is the button's state: it must differ from "Clear all".</extracomment>
        <translation>すべて選択</translation>
    </message>
    <message id="tessadocres-51">
        <source></source>
        <extracomment>FolderNotMade. Status, box and tool tip during a copy. Value: the folder.</extracomment>
        <translation>フォルダー %s を作成できません。書き込み権限があるか確認してください。</translation>
    </message>
    <message id="tessadocres-52">
        <source></source>
        <extracomment>RenameLoadFailed. Box of the rename pane. Values: document, reason.</extracomment>
        <translation>ドキュメント %s の名前変更を準備できません。%s</translation>
    </message>
    <message id="tessadocres-53">
        <source></source>
        <extracomment>Stop. Caption of a search button while it searches. Captions are state: it must differ from "Find now" and "Find again".</extracomment>
        <translation>停止</translation>
    </message>
    <message id="tessadocres-55">
        <source></source>
        <extracomment>NotFound. Mark of something that is not there.</extracomment>
        <translation>見つかりません</translation>
    </message>
    <message id="tessadocres-57">
        <source></source>
        <extracomment>NoTargetFile. Box when a copy is started without a target.</extracomment>
        <translation>コピー先のファイルを入力してください。</translation>
    </message>
    <message id="tessadocres-58">
        <source></source>
        <extracomment>TargetOfOtherType. Box when the target's extension is of another type.</extracomment>
        <translation>コピーはコピー元と同じ種類 (部品、アセンブリ、図面) でなければなりません。</translation>
    </message>
    <message id="tessadocres-59">
        <source></source>
        <extracomment>SourceMissing. Question with the buttons Yes, No, No to all and Cancel before a copy. Value: the document.</extracomment>
        <translation>ドキュメント %s が見つかりません。代わりに別のドキュメントを選択しますか?</translation>
    </message>
    <message id="tessadocres-60">
        <source></source>
        <extracomment>Working. Text of a progress label.</extracomment>
        <translation>処理中...</translation>
    </message>
    <message id="tessadocres-61">
        <source></source>
        <extracomment>Ready. Text of a progress label at the end.</extracomment>
        <translation>完了</translation>
    </message>
    <message id="tessadocres-62">
        <source></source>
        <extracomment>CopyCancelled. Status after Cancel at a question. Files copied so far stay.</extracomment>
        <translation>コピーは中止されました。</translation>
    </message>
    <message id="tessadocres-63">
        <source></source>
        <extracomment>CopyNotMade. Tool tip of a row that was left out of a copy.</extracomment>
        <translation>コピーされませんでした。</translation>
    </message>
    <message id="tessadocres-64">
        <source></source>
        <extracomment>TargetKept. Tool tip of a row whose target exists and was not to be overwritten.</extracomment>
        <translation>コピーされませんでした: 既存のファイルを残しました。</translation>
    </message>
    <message id="tessadocres-65">
        <source></source>
        <extracomment>RowNotCopied. Tool tip of a row that was passed over.</extracomment>
        <translation>コピーされませんでした: 行がチェックされていないか、ドキュメントが見つかりません。</translation>
    </message>
    <message id="tessadocres-66">
        <source></source>
        <extracomment>CopyDone. Status at the end of a copy. Values: number of rows copied, number of rows failed.</extracomment>
        <translation>コピー済み: %s、失敗: %s</translation>
    </message>
    <message id="tessadocres-68">
        <source></source>
        <extracomment>CopyNotOpened. Question. Value: the copy.</extracomment>
        <translation>コピー %s またはそのコピー元を開けないため、コピーの参照を更新できません。ほかのドキュメントの処理を続けますか?</translation>
    </message>
    <message id="tessadocres-69">
        <source></source>
        <extracomment>NotUpdatedTip. Tool tip of a row after a failure. Value: reason.</extracomment>
        <translation>更新されませんでした: %s</translation>
    </message>
    <message id="tessadocres-70">
        <source></source>
        <extracomment>NotSaved. Question. Values: document, reason.</extracomment>
        <translation>ドキュメント %s を保存できません。%s ほかのドキュメントの処理を続けますか?</translation>
    </message>
    <message id="tessadocres-72">
        <source></source>
        <extracomment>UpdatingReferences. Status. Value: the document.</extracomment>
        <translation>%s の参照を更新しています</translation>
    </message>
    <message id="tessadocres-73">
        <source></source>
        <extracomment>NotOpened. Question. Values: document, reason.</extracomment>
        <translation>参照を更新するためにドキュメント %s を開くことができません。%s ほかのドキュメントの処理を続けますか?</translation>
    </message>
    <message id="tessadocres-74">
        <source></source>
        <extracomment>OverwriteQuestion. Question with the buttons Yes, No and Cancel. Value: the file.</extracomment>
        <translation>ファイル %s は既に存在します。上書きしますか?</translation>
    </message>
    <message id="tessadocres-75">
        <source></source>
        <extracomment>SaveChanges. Button of the editors that writes the pending edits.</extracomment>
        <translation>変更を保存(&amp;S)</translation>
    </message>
    <message id="tessadocres-76">
        <source></source>
        <extracomment>HoldersFound. Status after a search for documents that use the source. Value: number of rows.</extracomment>
        <translation>見つかった参照: %s</translation>
    </message>
    <message id="tessadocres-77">
        <source></source>
        <extracomment>ParentRowTip. Tool tip of a row of the parent list.</extracomment>
        <translation>ボックスをクリックして、このドキュメントの扱いを選択します: そのまま、更新、または (図面の場合) コピー。</translation>
    </message>
    <message id="tessadocres-78">
        <source></source>
        <extracomment>ReadOnlyMark. Mark of a read-only document, put in front of its name in one list and behind it in another: a blank at both ends.</extracomment>
        <translation> (読み取り専用) </translation>
    </message>
    <message id="tessadocres-79">
        <source></source>
        <extracomment>Help. Toolbar button, menu entry and button of the description strip.</extracomment>
        <translation>ヘルプ</translation>
    </message>
    <message id="tessadocres-80">
        <source></source>
        <extracomment>SearchScope. Title of the form that says where and for what to search.</extracomment>
        <translation>検索範囲</translation>
    </message>
    <message id="tessadocres-81">
        <source></source>
        <extracomment>PropertyName. Title of the column with the names of properties.</extracomment>
        <translation>名前</translation>
    </message>
    <message id="tessadocres-82">
        <source></source>
        <extracomment>PropertyValue. Title of the column with the values of properties.</extracomment>
        <translation>値</translation>
    </message>
    <message id="tessadocres-83">
        <source></source>
        <extracomment>SearchScopeFrame. Frame of the search scope form.</extracomment>
        <translation>検索場所</translation>
    </message>
    <message id="tessadocres-84">
        <source></source>
        <extracomment>FindMirrored. Check box: find parts that mirror the document.</extracomment>
        <translation>ミラー部品(&amp;M)</translation>
    </message>
    <message id="tessadocres-85">
        <source></source>
        <extracomment>FolderLists. Button that drops down the named folder lists.</extracomment>
        <translation>フォルダーリスト(&amp;I)</translation>
    </message>
    <message id="tessadocres-86">
        <source></source>
        <extracomment>RecentFolders. Heading of a list of folders.</extracomment>
        <translation>最近使用したフォルダー</translation>
    </message>
    <message id="tessadocres-87">
        <source></source>
        <extracomment>FindReferences. Check box: find plain references to the document.</extracomment>
        <translation>参照(&amp;F)</translation>
    </message>
    <message id="tessadocres-88">
        <source></source>
        <extracomment>FindInContext. Check box: find parts that refer to the assembly in context.</extracomment>
        <translation>コンテキスト内(&amp;X)</translation>
    </message>
    <message id="tessadocres-89">
        <source></source>
        <extracomment>Cancel. Button.</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message id="tessadocres-90">
        <source></source>
        <extracomment>LookInWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>検索場所</translation>
    </message>
    <message id="tessadocres-91">
        <source></source>
        <extracomment>ChooseFolder. Title of the folder dialog. Value: what the folder is for.</extracomment>
        <translation>フォルダーの選択: %s</translation>
    </message>
    <message id="tessadocres-92">
        <source></source>
        <extracomment>BecomesMark. Stands between an old and a new name that is not saved yet; never empty.</extracomment>
        <translation> -&gt; </translation>
    </message>
    <message id="tessadocres-93">
        <source></source>
        <extracomment>ConfigurationNameEmpty. Box when a configuration is given an empty name.</extracomment>
        <translation>コンフィギュレーションには名前が必要です。</translation>
    </message>
    <message id="tessadocres-94">
        <source></source>
        <extracomment>ConfigurationNameTaken. Box when a configuration is given a name that another one has.</extracomment>
        <translation>同じ名前のコンフィギュレーションが既にあります。別の名前を指定してください。</translation>
    </message>
    <message id="tessadocres-95">
        <source></source>
        <extracomment>ConfigurationStays. Box when a configuration that must stay is deleted.</extracomment>
        <translation>このコンフィギュレーションは削除できません。</translation>
    </message>
    <message id="tessadocres-96">
        <source></source>
        <extracomment>ConfigurationsNotSaved. Status after a save that failed.</extracomment>
        <translation>一部のコンフィギュレーションを保存できませんでした。</translation>
    </message>
    <message id="tessadocres-97">
        <source></source>
        <extracomment>ConfigurationsSaved. Status.</extracomment>
        <translation>コンフィギュレーションを保存しました。</translation>
    </message>
    <message id="tessadocres-98">
        <source></source>
        <extracomment>ConfigurationSaveError. Box. Value: reason.</extracomment>
        <translation>コンフィギュレーションを保存できません。%s</translation>
    </message>
    <message id="tessadocres-99">
        <source></source>
        <extracomment>ConfigurationsOf. Root of the configuration tree. Value: title of the document.</extracomment>
        <translation>%s のコンフィギュレーション</translation>
    </message>
    <message id="tessadocres-100">
        <source></source>
        <extracomment>ConfigurationCount. Status. Value: their number.</extracomment>
        <translation>コンフィギュレーション: %s</translation>
    </message>
    <message id="tessadocres-101">
        <source></source>
        <extracomment>ConfigurationsNotLoaded. Status. Value: the document.</extracomment>
        <translation>%s のコンフィギュレーションを表示できません。</translation>
    </message>
    <message id="tessadocres-103">
        <source></source>
        <extracomment>MatchCase. Check box of the find and replace form.</extracomment>
        <translation>大文字と小文字を区別(&amp;C)</translation>
    </message>
    <message id="tessadocres-104">
        <source></source>
        <extracomment>FindNext. Button of the find and replace form.</extracomment>
        <translation>次を検索(&amp;F)</translation>
    </message>
    <message id="tessadocres-105">
        <source></source>
        <extracomment>ReplaceAll. Button of the find and replace form.</extracomment>
        <translation>すべて置換(&amp;A)</translation>
    </message>
    <message id="tessadocres-106">
        <source></source>
        <extracomment>ReplaceWith. Label in the find and replace form.</extracomment>
        <translation>置換後の文字列:</translation>
    </message>
    <message id="tessadocres-107">
        <source></source>
        <extracomment>FindWhat. Label in the find and replace form.</extracomment>
        <translation>検索する文字列:</translation>
    </message>
    <message id="tessadocres-108">
        <source></source>
        <extracomment>TextNotFound. Box of the find and replace form. Value: the text.</extracomment>
        <translation>文字列「%s」は見つかりませんでした。</translation>
    </message>
    <message id="tessadocres-109">
        <source></source>
        <extracomment>FindUpwards. Check box of a find form: from the end to the start.</extracomment>
        <translation>上へ検索(&amp;U)</translation>
    </message>
    <message id="tessadocres-110">
        <source></source>
        <extracomment>HyperlinksSaved. Status.</extracomment>
        <translation>ハイパーリンクを保存しました。</translation>
    </message>
    <message id="tessadocres-111">
        <source></source>
        <extracomment>HyperlinksNotSaved. Status after a save that failed.</extracomment>
        <translation>一部のハイパーリンクを保存できませんでした。</translation>
    </message>
    <message id="tessadocres-113">
        <source></source>
        <extracomment>MenuOpenFile. Menu entry.</extracomment>
        <translation>ドキュメントを開く(&amp;O)...</translation>
    </message>
    <message id="tessadocres-114">
        <source></source>
        <extracomment>HyperlinksNotLoaded. Status. Value: the document.</extracomment>
        <translation>%s のハイパーリンクを表示できません。</translation>
    </message>
    <message id="tessadocres-115">
        <source></source>
        <extracomment>HyperlinkLoadError. Box. Value: reason.</extracomment>
        <translation>ハイパーリンクを読み取れません。%s</translation>
    </message>
    <message id="tessadocres-116">
        <source></source>
        <extracomment>Size. Title of a column.</extracomment>
        <translation>サイズ</translation>
    </message>
    <message id="tessadocres-117">
        <source></source>
        <extracomment>Type. Title of a column: the type of a file or property, or the table of a reference.</extracomment>
        <translation>種類</translation>
    </message>
    <message id="tessadocres-118">
        <source></source>
        <extracomment>LastSaved. Label in the property pane and title of a column.</extracomment>
        <translation>最終保存日時</translation>
    </message>
    <message id="tessadocres-119">
        <source></source>
        <extracomment>Attributes. Title of a column with the letters of the file's attributes.</extracomment>
        <translation>属性</translation>
    </message>
    <message id="tessadocres-120">
        <source></source>
        <extracomment>ReferenceListError. Box. Value: reason.</extracomment>
        <translation>参照を一覧表示できません。%s</translation>
    </message>
    <message id="tessadocres-121">
        <source></source>
        <extracomment>DocumentNotReadable. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s を読み取れません。</translation>
    </message>
    <message id="tessadocres-122">
        <source></source>
        <extracomment>AppTitle. Name of the program: title of all boxes.</extracomment>
        <translation>Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-123">
        <source></source>
        <extracomment>NoToAll. Button of a question with up to four buttons.</extracomment>
        <translation>すべていいえ(&amp;A)</translation>
    </message>
    <message id="tessadocres-124">
        <source></source>
        <extracomment>No. Button of a question with up to four buttons.</extracomment>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message id="tessadocres-125">
        <source></source>
        <extracomment>Yes. Button of a question with up to four buttons.</extracomment>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message id="tessadocres-126">
        <source></source>
        <extracomment>Preview. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>プレビュー</translation>
    </message>
    <message id="tessadocres-127">
        <source></source>
        <extracomment>Properties. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>プロパティ</translation>
    </message>
    <message id="tessadocres-128">
        <source></source>
        <extracomment>References. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>参照</translation>
    </message>
    <message id="tessadocres-129">
        <source></source>
        <extracomment>WhereUsed. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>使用先</translation>
    </message>
    <message id="tessadocres-130">
        <source></source>
        <extracomment>Search. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>検索</translation>
    </message>
    <message id="tessadocres-131">
        <source></source>
        <extracomment>Configurations. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>コンフィギュレーション</translation>
    </message>
    <message id="tessadocres-132">
        <source></source>
        <extracomment>Hyperlinks. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>ハイパーリンク</translation>
    </message>
    <message id="tessadocres-133">
        <source></source>
        <extracomment>Setup. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>設定</translation>
    </message>
    <message id="tessadocres-134">
        <source></source>
        <extracomment>Options. Heading of a group of options.</extracomment>
        <translation>オプション</translation>
    </message>
    <message id="tessadocres-135">
        <source></source>
        <extracomment>PreviewHelp. Description strip of the preview.</extracomment>
        <translation>ドキュメントに保存されている画像を表示します。ツリーでドキュメントを順にクリックすると、画像を並べて見ることができます。</translation>
    </message>
    <message id="tessadocres-136">
        <source></source>
        <extracomment>PropertiesHelp. Description strip of the property pane.</extracomment>
        <translation>ドキュメントの情報を表示し、変更します: 概要、ユーザー定義プロパティ、各コンフィギュレーションのプロパティ。</translation>
    </message>
    <message id="tessadocres-137">
        <source></source>
        <extracomment>ReferencesHelp. Description strip of the reference pane.</extracomment>
        <translation>ドキュメントと、それが直接参照するドキュメントを、ファイルのサイズ、日付、属性とともに一覧表示します。</translation>
    </message>
    <message id="tessadocres-138">
        <source></source>
        <extracomment>ConfigurationsHelp. Description strip of the configuration pane.</extracomment>
        <translation>ドキュメントのコンフィギュレーションの名前変更と削除を行います。保存するまで何も書き込まれません。</translation>
    </message>
    <message id="tessadocres-139">
        <source></source>
        <extracomment>WhereUsedHelp. Description strip of the where-used pane.</extracomment>
        <translation>指定したフォルダーの中で、ドキュメントを使用しているドキュメントを検索します。</translation>
    </message>
    <message id="tessadocres-140">
        <source></source>
        <extracomment>SearchHelp. Description strip of the search pane.</extracomment>
        <translation>指定したフォルダーの中で、プロパティのルールに合うドキュメントを検索します。</translation>
    </message>
    <message id="tessadocres-141">
        <source></source>
        <extracomment>RenameHelp. Description strip of the rename pane.</extracomment>
        <translation>ドキュメントの名前を変更するか、別のドキュメントに置き換え、それを使用しているドキュメントを更新します。</translation>
    </message>
    <message id="tessadocres-142">
        <source></source>
        <extracomment>CopyHelp. Description strip of the copy pane.</extracomment>
        <translation>ドキュメントを参照とともにコピーします。コピーは互いを参照します。親ドキュメントの更新やコピーもできます。</translation>
    </message>
    <message id="tessadocres-143">
        <source></source>
        <extracomment>HyperlinksHelp. Description strip of the hyperlink pane.</extracomment>
        <translation>ドキュメントに保存されているハイパーリンクを変更します。ダブルクリックすると開きます。保存するまで何も書き込まれません。</translation>
    </message>
    <message id="tessadocres-144">
        <source></source>
        <extracomment>SetupHelp. Description strip of the setup pane.</extracomment>
        <translation>オプションを設定し、検索で使用する名前付きフォルダーリストを管理します。</translation>
    </message>
    <message id="tessadocres-145">
        <source></source>
        <extracomment>OpenFilter. Filter of the open dialog, as pairs of label and patterns.</extracomment>
        <translation>すべてのドキュメント (*.tfmasm, *.tfmprt, *.tfmdrw, *.asm, *.prt)|*.tfmasm;*.tfmprt;*.tfmdrw;*.asm;*.prt|アセンブリ (*.tfmasm, *.asm)|*.tfmasm;*.asm|部品 (*.tfmprt, *.prt)|*.tfmprt;*.prt|図面 (*.tfmdrw)|*.tfmdrw</translation>
    </message>
    <message id="tessadocres-146">
        <source></source>
        <extracomment>OldFormat. Shown instead of a list, and as status.</extracomment>
        <translation>このドキュメントは古い形式です。ここで編集するには、CAD プログラムで一度保存してください。</translation>
    </message>
    <message id="tessadocres-147">
        <source></source>
        <extracomment>RelationDefault. How a document uses another: every case that has no word of its own. No path separator, no colon; differs from the two others.</extracomment>
        <translation>参照</translation>
    </message>
    <message id="tessadocres-148">
        <source></source>
        <extracomment>RelationAssembly. How a document uses another: a part that refers to an assembly. No path separator, no colon; differs from the two others.</extracomment>
        <translation>コンテキスト内</translation>
    </message>
    <message id="tessadocres-149">
        <source></source>
        <extracomment>RelationPart. How a document uses another: a part that refers to a part. No path separator, no colon; differs from the two others.</extracomment>
        <translation>ミラー</translation>
    </message>
    <message id="tessadocres-150">
        <source></source>
        <extracomment>Details. Button that shows the reason of a failure.</extracomment>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message id="tessadocres-151">
        <source></source>
        <extracomment>CurrentDocument. Label of the document that a pane shows.</extracomment>
        <translation>現在のドキュメント</translation>
    </message>
    <message id="tessadocres-152">
        <source></source>
        <extracomment>SummaryTab. Tab of the property pane.</extracomment>
        <translation>概要</translation>
    </message>
    <message id="tessadocres-153">
        <source></source>
        <extracomment>CustomTab. Tab of the property pane.</extracomment>
        <translation>ユーザー定義</translation>
    </message>
    <message id="tessadocres-154">
        <source></source>
        <extracomment>ConfigurationTab. Tab of the property pane.</extracomment>
        <translation>コンフィギュレーション固有</translation>
    </message>
    <message id="tessadocres-155">
        <source></source>
        <extracomment>NameField. Label of the field with a property's name.</extracomment>
        <translation>名前</translation>
    </message>
    <message id="tessadocres-156">
        <source></source>
        <extracomment>ValueField. Label of the field with a property's value.</extracomment>
        <translation>値</translation>
    </message>
    <message id="tessadocres-157">
        <source></source>
        <extracomment>Comments. Label in the property pane and property of a search rule.</extracomment>
        <translation>コメント</translation>
    </message>
    <message id="tessadocres-158">
        <source></source>
        <extracomment>Keywords. Label in the property pane and property of a search rule.</extracomment>
        <translation>キーワード</translation>
    </message>
    <message id="tessadocres-159">
        <source></source>
        <extracomment>Author. Label in the property pane and property of a search rule.</extracomment>
        <translation>作成者</translation>
    </message>
    <message id="tessadocres-160">
        <source></source>
        <extracomment>Subject. Label in the property pane and property of a search rule.</extracomment>
        <translation>件名</translation>
    </message>
    <message id="tessadocres-161">
        <source></source>
        <extracomment>Title. Label in the property pane and property of a search rule.</extracomment>
        <translation>タイトル</translation>
    </message>
    <message id="tessadocres-162">
        <source></source>
        <extracomment>TypeField. Label of the field with a property's type.</extracomment>
        <translation>種類</translation>
    </message>
    <message id="tessadocres-163">
        <source></source>
        <extracomment>Change. Caption of the button that adds, when the name exists. Captions are state: it must differ from "Add".</extracomment>
        <translation>変更</translation>
    </message>
    <message id="tessadocres-164">
        <source></source>
        <extracomment>TypeText. Type of a property. The four types must differ.</extracomment>
        <translation>テキスト</translation>
    </message>
    <message id="tessadocres-165">
        <source></source>
        <extracomment>TypeDate. Type of a property. The four types must differ.</extracomment>
        <translation>日付</translation>
    </message>
    <message id="tessadocres-166">
        <source></source>
        <extracomment>TypeNumber. Type of a property. The four types must differ.</extracomment>
        <translation>数値</translation>
    </message>
    <message id="tessadocres-167">
        <source></source>
        <extracomment>TypeYesNo. Type of a property. The four types must differ.</extracomment>
        <translation>はい/いいえ</translation>
    </message>
    <message id="tessadocres-168">
        <source></source>
        <extracomment>ValueOfOtherType. Box when a property is added.</extracomment>
        <translation>値が種類に合いません。種類に合わせて日付または数値を入力するか、別の種類を選択してください。</translation>
    </message>
    <message id="tessadocres-169">
        <source></source>
        <extracomment>PropertiesNotOpened. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s を開けないため、プロパティは書き込まれませんでした。変更内容はペインに残っています。</translation>
    </message>
    <message id="tessadocres-170">
        <source></source>
        <extracomment>PropertiesWriteError. Box. Value: reason.</extracomment>
        <translation>プロパティを書き込めません。%s</translation>
    </message>
    <message id="tessadocres-171">
        <source></source>
        <extracomment>LeaveConfiguration. Question with the buttons Yes and No.</extracomment>
        <translation>コンフィギュレーションのプロパティが変更されています。続ける前に書き込みますか?</translation>
    </message>
    <message id="tessadocres-172">
        <source></source>
        <extracomment>NoConfigurationProperties. Box.</extracomment>
        <translation>このコンフィギュレーションのプロパティを読み取れません。</translation>
    </message>
    <message id="tessadocres-173">
        <source></source>
        <extracomment>ConfigurationPropertiesError. Box. Value: reason.</extracomment>
        <translation>コンフィギュレーションのプロパティを表示できません。%s</translation>
    </message>
    <message id="tessadocres-174">
        <source></source>
        <extracomment>PropertiesOf. Status. Value: the document.</extracomment>
        <translation>%s のプロパティ</translation>
    </message>
    <message id="tessadocres-175">
        <source></source>
        <extracomment>NoProperties. Box.</extracomment>
        <translation>このドキュメントには読み取れるプロパティがありません。</translation>
    </message>
    <message id="tessadocres-176">
        <source></source>
        <extracomment>NoPropertiesOf. Status. Value: the document.</extracomment>
        <translation>%s のプロパティを表示できません。</translation>
    </message>
    <message id="tessadocres-177">
        <source></source>
        <extracomment>PropertiesLoadError. Box. Value: reason.</extracomment>
        <translation>プロパティを読み取れません。%s</translation>
    </message>
    <message id="tessadocres-178">
        <source></source>
        <extracomment>PropertiesShowError. Box of the property pane. Value: reason.</extracomment>
        <translation>ドキュメントを表示できません。%s</translation>
    </message>
    <message id="tessadocres-179">
        <source></source>
        <extracomment>PropertyCreatedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>作成担当者</translation>
    </message>
    <message id="tessadocres-180">
        <source></source>
        <extracomment>PropertyCreatedOn. Suggested name of a property.</extracomment>
        <translation>作成日</translation>
    </message>
    <message id="tessadocres-181">
        <source></source>
        <extracomment>PropertyDateCompleted. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>完了日</translation>
    </message>
    <message id="tessadocres-182">
        <source></source>
        <extracomment>PropertyDepartment. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>部署</translation>
    </message>
    <message id="tessadocres-183">
        <source></source>
        <extracomment>PropertyDestination. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>宛先</translation>
    </message>
    <message id="tessadocres-184">
        <source></source>
        <extracomment>PropertyDisposition. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>処置</translation>
    </message>
    <message id="tessadocres-185">
        <source></source>
        <extracomment>PropertyDivision. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>事業部</translation>
    </message>
    <message id="tessadocres-186">
        <source></source>
        <extracomment>PropertyDocumentNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>ドキュメント番号</translation>
    </message>
    <message id="tessadocres-187">
        <source></source>
        <extracomment>PropertyEditor. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>編集者</translation>
    </message>
    <message id="tessadocres-188">
        <source></source>
        <extracomment>PropertyForwardTo. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>転送先</translation>
    </message>
    <message id="tessadocres-189">
        <source></source>
        <extracomment>PropertyGroup. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>グループ</translation>
    </message>
    <message id="tessadocres-190">
        <source></source>
        <extracomment>PropertyLanguage. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>言語</translation>
    </message>
    <message id="tessadocres-191">
        <source></source>
        <extracomment>PropertyMailstop. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>メールストップ</translation>
    </message>
    <message id="tessadocres-192">
        <source></source>
        <extracomment>PropertyMatter. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>案件</translation>
    </message>
    <message id="tessadocres-193">
        <source></source>
        <extracomment>PropertyOffice. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>事務所</translation>
    </message>
    <message id="tessadocres-194">
        <source></source>
        <extracomment>PropertyOwner. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>所有者</translation>
    </message>
    <message id="tessadocres-195">
        <source></source>
        <extracomment>PropertyProject. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>プロジェクト</translation>
    </message>
    <message id="tessadocres-196">
        <source></source>
        <extracomment>PropertyPublisher. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>発行者</translation>
    </message>
    <message id="tessadocres-197">
        <source></source>
        <extracomment>PropertyPurpose. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>目的</translation>
    </message>
    <message id="tessadocres-198">
        <source></source>
        <extracomment>PropertyReceivedFrom. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>受領元</translation>
    </message>
    <message id="tessadocres-199">
        <source></source>
        <extracomment>PropertyRecordedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>記録者</translation>
    </message>
    <message id="tessadocres-200">
        <source></source>
        <extracomment>PropertyRecordedDate. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>記録日</translation>
    </message>
    <message id="tessadocres-201">
        <source></source>
        <extracomment>PropertyReference. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>参照番号</translation>
    </message>
    <message id="tessadocres-202">
        <source></source>
        <extracomment>PropertySource. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>ソース</translation>
    </message>
    <message id="tessadocres-203">
        <source></source>
        <extracomment>PropertyTelephoneNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>電話番号</translation>
    </message>
    <message id="tessadocres-204">
        <source></source>
        <extracomment>PropertyTypist. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>入力者</translation>
    </message>
    <message id="tessadocres-205">
        <source></source>
        <extracomment>Configuration. Label of the list of configurations in the property pane.</extracomment>
        <translation>コンフィギュレーション</translation>
    </message>
    <message id="tessadocres-206">
        <source></source>
        <extracomment>Position. Title of the column with the position of a reference in its table.</extracomment>
        <translation>位置</translation>
    </message>
    <message id="tessadocres-207">
        <source></source>
        <extracomment>MenuRename. Menu entry of the tree and of the configurations, and label (a colon follows).</extracomment>
        <translation>名前の変更</translation>
    </message>
    <message id="tessadocres-208">
        <source></source>
        <extracomment>HolderPath. Title of the column of documents that use the target when it shows whole paths.</extracomment>
        <translation>使用先 (パス)</translation>
    </message>
    <message id="tessadocres-209">
        <source></source>
        <extracomment>ChooseReplacement. Title of the file dialog of a replacement.</extracomment>
        <translation>置き換えるドキュメントの選択</translation>
    </message>
    <message id="tessadocres-210">
        <source></source>
        <extracomment>DocumentsToUpdate. Check box and frame of the rename pane around the list of documents to update.</extracomment>
        <translation>使用しているドキュメント</translation>
    </message>
    <message id="tessadocres-211">
        <source></source>
        <extracomment>TargetCollides. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s はここでは使用できません。このドキュメントまたは上位のドキュメントと同じ名前であるか、上位のドキュメントを参照しているか、または参照を確認できません。</translation>
    </message>
    <message id="tessadocres-213">
        <source></source>
        <extracomment>TargetTypeUnknown. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s はドキュメントの名前ではありません。部品、アセンブリ、または図面の拡張子を付けてください。</translation>
    </message>
    <message id="tessadocres-214">
        <source></source>
        <extracomment>TargetUnchanged. Box when a new name or a replacement is refused.</extracomment>
        <translation>これはこのドキュメント自身です。別のドキュメントを選択してください。</translation>
    </message>
    <message id="tessadocres-216">
        <source></source>
        <extracomment>TargetTypeDiffers. Box when a new name or a replacement is refused.</extracomment>
        <translation>新しいドキュメントは、元のドキュメントと同じ種類でなければなりません。</translation>
    </message>
    <message id="tessadocres-218">
        <source></source>
        <extracomment>TargetMissing. Box when a replacement is refused. Value: its path.</extracomment>
        <translation>ドキュメント %s は存在しません。存在するドキュメントを選択してください。</translation>
    </message>
    <message id="tessadocres-219">
        <source></source>
        <extracomment>TargetExists. Box when a new name is refused.</extracomment>
        <translation>同じ名前のファイルが既にあります。別の名前を指定してください。</translation>
    </message>
    <message id="tessadocres-220">
        <source></source>
        <extracomment>TargetElsewhere. Box when a new name is refused.</extracomment>
        <translation>フォルダーを含まない名前を入力してください。ドキュメントの名前は、同じフォルダーの中で変更されます。</translation>
    </message>
    <message id="tessadocres-221">
        <source></source>
        <extracomment>Renamed. Result of a renaming.</extracomment>
        <translation>名前変更済み</translation>
    </message>
    <message id="tessadocres-222">
        <source></source>
        <extracomment>Replaced. Result of a replacement.</extracomment>
        <translation>置換済み</translation>
    </message>
    <message id="tessadocres-223">
        <source></source>
        <extracomment>SearchingHolders. Status. Value: the folder.</extracomment>
        <translation>%s で参照を検索しています</translation>
    </message>
    <message id="tessadocres-225">
        <source></source>
        <extracomment>HolderIsReplacement. Box of a replacement. Values: document, new reference.</extracomment>
        <translation>ドキュメント %s のファイル名は、新しい参照先 %s と同じです。チェックを外しました。このドキュメントを除いて続けるには、もう一度「適用」をクリックしてください。</translation>
    </message>
    <message id="tessadocres-227">
        <source></source>
        <extracomment>HolderHasNewName. Box of a renaming. Values: document, new name.</extracomment>
        <translation>ドキュメント %s の名前は、新しい名前 %s と同じです。チェックを外しました。このドキュメントを除いて続けるには、もう一度「適用」をクリックしてください。</translation>
    </message>
    <message id="tessadocres-229">
        <source></source>
        <extracomment>NotRenamed. Box. Value: the new path.</extracomment>
        <translation>ドキュメントの名前を %s に変更できません。フォルダーへの書き込み権限があるか確認してください。</translation>
    </message>
    <message id="tessadocres-230">
        <source></source>
        <extracomment>NothingChanged. Status after a renaming that failed.</extracomment>
        <translation>何も変更されませんでした。</translation>
    </message>
    <message id="tessadocres-231">
        <source></source>
        <extracomment>RowFailedTip. Tool tip of a row. Value: reason.</extracomment>
        <translation>更新されませんでした: %s</translation>
    </message>
    <message id="tessadocres-232">
        <source></source>
        <extracomment>RowFailed. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s を更新できません。古い参照のままになります。</translation>
    </message>
    <message id="tessadocres-233">
        <source></source>
        <extracomment>ExportedUpdated. In an export: the row was updated.</extracomment>
        <translation>更新済み</translation>
    </message>
    <message id="tessadocres-234">
        <source></source>
        <extracomment>RowUpdatedTip. Tool tip of a row.</extracomment>
        <translation>更新済み</translation>
    </message>
    <message id="tessadocres-235">
        <source></source>
        <extracomment>ExportedUnticked. In an export: the row is not ticked.</extracomment>
        <translation>いいえ</translation>
    </message>
    <message id="tessadocres-236">
        <source></source>
        <extracomment>OpeningFrame. Frame of the setup pane.</extracomment>
        <translation>ドキュメントを開くとき</translation>
    </message>
    <message id="tessadocres-237">
        <source></source>
        <extracomment>UseSearchRules. Check box of the setup pane.</extracomment>
        <translation>ドキュメントを開くときに検索ルールを使用する(&amp;S)</translation>
    </message>
    <message id="tessadocres-238">
        <source></source>
        <extracomment>DisplayFrame. Frame of the setup pane.</extracomment>
        <translation>表示</translation>
    </message>
    <message id="tessadocres-239">
        <source></source>
        <extracomment>ShowDescription. Check box of the setup pane.</extracomment>
        <translation>ペインの上に説明を表示する(&amp;D)</translation>
    </message>
    <message id="tessadocres-240">
        <source></source>
        <extracomment>FolderListsFrame. Frame of the setup pane.</extracomment>
        <translation>名前付きフォルダーリスト</translation>
    </message>
    <message id="tessadocres-241">
        <source></source>
        <extracomment>FolderListNames. Label of the list of names in the setup pane.</extracomment>
        <translation>フォルダーリスト</translation>
    </message>
    <message id="tessadocres-242">
        <source></source>
        <extracomment>FolderListName. Label of the field with the name of a folder list.</extracomment>
        <translation>名前</translation>
    </message>
    <message id="tessadocres-243">
        <source></source>
        <extracomment>FolderListFolders. Label of the folders of the list being edited.</extracomment>
        <translation>リストのフォルダー</translation>
    </message>
    <message id="tessadocres-244">
        <source></source>
        <extracomment>AddFolder. Button of the setup pane.</extracomment>
        <translation>フォルダーを追加(&amp;F)...</translation>
    </message>
    <message id="tessadocres-245">
        <source></source>
        <extracomment>RemoveFolder. Button of the setup pane.</extracomment>
        <translation>フォルダーを除外(&amp;M)</translation>
    </message>
    <message id="tessadocres-246">
        <source></source>
        <extracomment>DeleteFolderList. Button of the setup pane.</extracomment>
        <translation>リストを削除(&amp;T)</translation>
    </message>
    <message id="tessadocres-247">
        <source></source>
        <extracomment>MenuDelete. Menu entry of a configuration.</extracomment>
        <translation>削除(&amp;D)</translation>
    </message>
    <message id="tessadocres-248">
        <source></source>
        <extracomment>MoveUp. Button of the setup pane.</extracomment>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message id="tessadocres-249">
        <source></source>
        <extracomment>MoveDown. Button of the setup pane.</extracomment>
        <translation>下へ移動(&amp;N)</translation>
    </message>
    <message id="tessadocres-250">
        <source></source>
        <extracomment>ClearFolders. Button of the setup pane.</extracomment>
        <translation>リストを空にする(&amp;C)</translation>
    </message>
    <message id="tessadocres-251">
        <source></source>
        <extracomment>HeaderTip. Tool tip of a list.</extracomment>
        <translation>見出しをクリックすると、ファイル名とフルパスの表示が切り替わります。</translation>
    </message>
    <message id="tessadocres-252">
        <source></source>
        <extracomment>FolderListsTip. Tool tip of the button that drops down the folder lists.</extracomment>
        <translation>設定の名前付きフォルダーリストを表示します。</translation>
    </message>
    <message id="tessadocres-253">
        <source></source>
        <extracomment>LookInTip. Tool tip of a field with folders.</extracomment>
        <translation>フォルダーを「;」で区切って入力します。先頭に空白のある項目は、名前付きフォルダーリストを表します。</translation>
    </message>
    <message id="tessadocres-254">
        <source></source>
        <extracomment>DocumentToFindTip. Tool tip of the field with the document whose uses are looked for.</extracomment>
        <translation>ドキュメントの名前。フォルダーと拡張子は省略できます。</translation>
    </message>
    <message id="tessadocres-255">
        <source></source>
        <extracomment>DropTip. Tool tip of a field.</extracomment>
        <translation>ドキュメントまたはフォルダーをここにドロップします。</translation>
    </message>
    <message id="tessadocres-256">
        <source></source>
        <extracomment>OptionNotSaved. Box of the setup pane.</extracomment>
        <translation>オプションを保存できません。設定への書き込み権限があるか確認してください。</translation>
    </message>
    <message id="tessadocres-257">
        <source></source>
        <extracomment>FolderListWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>フォルダーリスト</translation>
    </message>
    <message id="tessadocres-258">
        <source></source>
        <extracomment>FolderListNotDeleted. Box. Value: its name.</extracomment>
        <translation>フォルダーリスト %s を削除できません。</translation>
    </message>
    <message id="tessadocres-259">
        <source></source>
        <extracomment>FolderListNameWithBlank. Box of the setup pane.</extracomment>
        <translation>フォルダーリストの名前に空白を含めることはできません。</translation>
    </message>
    <message id="tessadocres-260">
        <source></source>
        <extracomment>FolderListSaved. Status. Value: its name.</extracomment>
        <translation>フォルダーリスト %s を保存しました。</translation>
    </message>
    <message id="tessadocres-261">
        <source></source>
        <extracomment>AddFolderList. Caption of the setup pane's apply button for a new folder list; for an existing one it reads "Change".</extracomment>
        <translation>追加</translation>
    </message>
    <message id="tessadocres-262">
        <source></source>
        <extracomment>SearchFolderTitle. Title of the folder dialog of the search pane. Value: what the folder is for.</extracomment>
        <translation>ドキュメントの検索: %s</translation>
    </message>
    <message id="tessadocres-263">
        <source></source>
        <extracomment>RuleAndOption. Option of the search pane: the rule must hold as well.</extracomment>
        <translation>かつ(&amp;A)</translation>
    </message>
    <message id="tessadocres-264">
        <source></source>
        <extracomment>RuleOrOption. Option of the search pane: the rule may hold instead.</extracomment>
        <translation>または(&amp;R)</translation>
    </message>
    <message id="tessadocres-265">
        <source></source>
        <extracomment>RuleProperty. Title of the column of rules with the property.</extracomment>
        <translation>プロパティ</translation>
    </message>
    <message id="tessadocres-266">
        <source></source>
        <extracomment>BrowseMore. Button that opens a file or folder dialog, beside another one with a different key.</extracomment>
        <translation>参照(&amp;W)...</translation>
    </message>
    <message id="tessadocres-267">
        <source></source>
        <extracomment>RuleCondition. Title of the column of rules with the condition.</extracomment>
        <translation>条件</translation>
    </message>
    <message id="tessadocres-268">
        <source></source>
        <extracomment>RuleValue. Title of the column of rules with the value.</extracomment>
        <translation>値</translation>
    </message>
    <message id="tessadocres-269">
        <source></source>
        <extracomment>AddRule. Button of the search pane.</extracomment>
        <translation>ルールを追加(&amp;U)</translation>
    </message>
    <message id="tessadocres-270">
        <source></source>
        <extracomment>FindNow. Caption of a search button at first. Captions are state: it must differ from "Stop".</extracomment>
        <translation>検索開始</translation>
    </message>
    <message id="tessadocres-271">
        <source></source>
        <extracomment>DeleteRule. Button of the search pane.</extracomment>
        <translation>ルールを削除(&amp;L)</translation>
    </message>
    <message id="tessadocres-272">
        <source></source>
        <extracomment>NewSearch. Button of the search panes that empties all fields.</extracomment>
        <translation>新しい検索(&amp;N)</translation>
    </message>
    <message id="tessadocres-273">
        <source></source>
        <extracomment>SaveSearch. Button of the search pane.</extracomment>
        <translation>検索条件を保存(&amp;H)...</translation>
    </message>
    <message id="tessadocres-274">
        <source></source>
        <extracomment>LoadSearch. Button of the search pane.</extracomment>
        <translation>検索条件を読み込み(&amp;D)...</translation>
    </message>
    <message id="tessadocres-275">
        <source></source>
        <extracomment>WithSubfolders. Check box: search the folders below as well.</extracomment>
        <translation>サブフォルダーも検索(&amp;S)</translation>
    </message>
    <message id="tessadocres-276">
        <source></source>
        <extracomment>Rules. Frame of the search pane around the rules.</extracomment>
        <translation>ルール</translation>
    </message>
    <message id="tessadocres-277">
        <source></source>
        <extracomment>Results. Heading of the documents found.</extracomment>
        <translation>結果</translation>
    </message>
    <message id="tessadocres-278">
        <source></source>
        <extracomment>RuleConnective. Title of the column of rules with the connective.</extracomment>
        <translation>結合</translation>
    </message>
    <message id="tessadocres-279">
        <source></source>
        <extracomment>RuleOr. Connective of a search rule; also written to saved searches. No double quotes.</extracomment>
        <translation>または</translation>
    </message>
    <message id="tessadocres-280">
        <source></source>
        <extracomment>RuleValueField. Label of the field with a rule's value.</extracomment>
        <translation>値</translation>
    </message>
    <message id="tessadocres-281">
        <source></source>
        <extracomment>RulePropertyField. Label of the field with a rule's property.</extracomment>
        <translation>プロパティ</translation>
    </message>
    <message id="tessadocres-282">
        <source></source>
        <extracomment>RuleConditionField. Label of the field with a rule's condition.</extracomment>
        <translation>条件</translation>
    </message>
    <message id="tessadocres-283">
        <source></source>
        <extracomment>SearchFolders. Label of the folders of a search.</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message id="tessadocres-284">
        <source></source>
        <extracomment>CreatedColumn. Title of a column.</extracomment>
        <translation>作成日時</translation>
    </message>
    <message id="tessadocres-285">
        <source></source>
        <extracomment>ModifiedColumn. Title of a column.</extracomment>
        <translation>更新日時</translation>
    </message>
    <message id="tessadocres-286">
        <source></source>
        <extracomment>FolderColumn. Title of a column.</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message id="tessadocres-287">
        <source></source>
        <extracomment>SavedSearchFilter. Filter of the dialogs for saved searches, as pairs of label and patterns.</extracomment>
        <translation>保存された検索条件 (*.tdbs)|*.tdbs|すべてのファイル (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-288">
        <source></source>
        <extracomment>SavedSearchExtension. Extension that a saved search gets when none is typed.</extracomment>
        <translation>tdbs</translation>
    </message>
    <message id="tessadocres-289">
        <source></source>
        <extracomment>SavedSearchError. Box.</extracomment>
        <translation>保存された検索条件を完全には読み取れません。検索条件のファイルであるか、読み取り権限があるか確認してください。</translation>
    </message>
    <message id="tessadocres-290">
        <source></source>
        <extracomment>SavedSearchExists. Question with the buttons OK and Cancel.</extracomment>
        <translation>同じ名前の検索条件が既に保存されています。上書きしますか?</translation>
    </message>
    <message id="tessadocres-291">
        <source></source>
        <extracomment>SearchSaved. Status.</extracomment>
        <translation>検索条件を保存しました。</translation>
    </message>
    <message id="tessadocres-292">
        <source></source>
        <extracomment>SearchLoaded. Status.</extracomment>
        <translation>検索条件を読み込みました。</translation>
    </message>
    <message id="tessadocres-293">
        <source></source>
        <extracomment>DocumentsFound. Status at the end of a search. Value: their number.</extracomment>
        <translation>見つかったドキュメント: %s</translation>
    </message>
    <message id="tessadocres-294">
        <source></source>
        <extracomment>SearchStopped. Text of a progress label.</extracomment>
        <translation>検索は停止されました。</translation>
    </message>
    <message id="tessadocres-295">
        <source></source>
        <extracomment>SearchingFolder. Status. Value: the folder.</extracomment>
        <translation>%s を検索しています</translation>
    </message>
    <message id="tessadocres-296">
        <source></source>
        <extracomment>IsExactly. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>完全に一致</translation>
    </message>
    <message id="tessadocres-297">
        <source></source>
        <extracomment>IsNot. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>一致しない</translation>
    </message>
    <message id="tessadocres-298">
        <source></source>
        <extracomment>Contains. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>次を含む</translation>
    </message>
    <message id="tessadocres-299">
        <source></source>
        <extracomment>NotEqual. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>等しくない</translation>
    </message>
    <message id="tessadocres-300">
        <source></source>
        <extracomment>IsYes. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>「はい」である</translation>
    </message>
    <message id="tessadocres-301">
        <source></source>
        <extracomment>IsNo. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>「いいえ」である</translation>
    </message>
    <message id="tessadocres-302">
        <source></source>
        <extracomment>LastSavedBy. Label in the property pane and property of a search rule.</extracomment>
        <translation>最終保存者</translation>
    </message>
    <message id="tessadocres-303">
        <source></source>
        <extracomment>PropertyLastSaved. Property of a search rule.</extracomment>
        <translation>最終保存日時</translation>
    </message>
    <message id="tessadocres-304">
        <source></source>
        <extracomment>Created. Label in the property pane and property of a search rule.</extracomment>
        <translation>作成日時</translation>
    </message>
    <message id="tessadocres-305">
        <source></source>
        <extracomment>NumberNeeded. Box. Value: the condition.</extracomment>
        <translation>条件「%s」には数値が必要です。数値を入力してください。</translation>
    </message>
    <message id="tessadocres-306">
        <source></source>
        <extracomment>Loading. Text of a progress label.</extracomment>
        <translation>読み込み中...</translation>
    </message>
    <message id="tessadocres-307">
        <source></source>
        <extracomment>NoPreview. Shown in place of the picture.</extracomment>
        <translation>このドキュメントにはプレビューがありません。</translation>
    </message>
    <message id="tessadocres-308">
        <source></source>
        <extracomment>ChooseFunction. Shown where there is no pane.</extracomment>
        <translation>アイコンバーまたはメニューから機能を選択してください。</translation>
    </message>
    <message id="tessadocres-309">
        <source></source>
        <extracomment>OpenDocumentTitle. Title of the open dialog.</extracomment>
        <translation>ドキュメントを開く</translation>
    </message>
    <message id="tessadocres-310">
        <source></source>
        <extracomment>NodeMissing. Status. Value: the document.</extracomment>
        <translation>ドキュメント %s が見つかりません。</translation>
    </message>
    <message id="tessadocres-311">
        <source></source>
        <extracomment>DocumentNotFound. Status. Value: the document.</extracomment>
        <translation>ドキュメント %s が見つからないか、開くことができません。</translation>
    </message>
    <message id="tessadocres-312">
        <source></source>
        <extracomment>CircularNode. Text of a tree node whose document stands above it already. Value: the text so far, which ends in a blank.</extracomment>
        <translation>%s(循環)</translation>
    </message>
    <message id="tessadocres-313">
        <source></source>
        <extracomment>CircularReference. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s は、参照をたどると自分自身を参照しています。</translation>
    </message>
    <message id="tessadocres-314">
        <source></source>
        <extracomment>WalkError. Box. Values: document, reason.</extracomment>
        <translation>%s の参照を読み取れません。%s</translation>
    </message>
    <message id="tessadocres-315">
        <source></source>
        <extracomment>Rename. Menu entry and heading of the pane.</extracomment>
        <translation>名前の変更</translation>
    </message>
    <message id="tessadocres-316">
        <source></source>
        <extracomment>Copy. Menu entry and heading of the pane.</extracomment>
        <translation>コピー</translation>
    </message>
    <message id="tessadocres-317">
        <source></source>
        <extracomment>Replace. Menu entry and heading of the pane.</extracomment>
        <translation>置換</translation>
    </message>
    <message id="tessadocres-318">
        <source></source>
        <extracomment>PreviewError. Box. Value: the document.</extracomment>
        <translation>%s のプレビューを表示できません。</translation>
    </message>
    <message id="tessadocres-319">
        <source></source>
        <extracomment>FullScreenTip. Tool tip of the preview's check box.</extracomment>
        <translation>選択したドキュメントの画像を並べる代わりに、1 つの画像をペイン全体に表示します。</translation>
    </message>
    <message id="tessadocres-320">
        <source></source>
        <extracomment>ClearPreviews. Menu entry of the preview.</extracomment>
        <translation>画像を消去(&amp;C)</translation>
    </message>
    <message id="tessadocres-321">
        <source></source>
        <extracomment>OpenInCad. Menu entry.</extracomment>
        <translation>CAD プログラムで開く</translation>
    </message>
    <message id="tessadocres-322">
        <source></source>
        <extracomment>CopyPath. Menu entry.</extracomment>
        <translation>パスをコピー</translation>
    </message>
    <message id="tessadocres-323">
        <source></source>
        <extracomment>ShowInFolder. Menu entry.</extracomment>
        <translation>フォルダーで表示</translation>
    </message>
    <message id="tessadocres-324">
        <source></source>
        <extracomment>ExpandAll. Menu entry of the tree.</extracomment>
        <translation>すべて展開</translation>
    </message>
    <message id="tessadocres-326">
        <source></source>
        <extracomment>ReferenceName. Title of the column of references found when it shows file names.</extracomment>
        <translation>参照</translation>
    </message>
    <message id="tessadocres-327">
        <source></source>
        <extracomment>ReferencePath. Title of the column of references found when it shows whole paths.</extracomment>
        <translation>参照 (パス)</translation>
    </message>
    <message id="tessadocres-328">
        <source></source>
        <extracomment>FoldersNotFound. Box. Value: the folders, joined by ";".</extracomment>
        <translation>次のフォルダーは見つからないため、取り除かれました: %s</translation>
    </message>
    <message id="tessadocres-329">
        <source></source>
        <extracomment>MenuSearchScope. Button that opens the search scope form.</extracomment>
        <translation>検索範囲(&amp;C)...</translation>
    </message>
    <message id="tessadocres-331">
        <source></source>
        <extracomment>MenuReplace. Menu entry of the tree, title of the find and replace form, and label (a colon follows).</extracomment>
        <translation>置換</translation>
    </message>
    <message id="tessadocres-332">
        <source></source>
        <extracomment>About. Menu entry and title of the about box.</extracomment>
        <translation>Tessaforma Docbench について</translation>
    </message>
    <message id="tessadocres-333">
        <source></source>
        <extracomment>VendorPage. Button of the about box that opens the maker's page in the browser.</extracomment>
        <translation>Web ページ(&amp;W)</translation>
    </message>
    <message id="tessadocres-334">
        <source></source>
        <extracomment>AboutDescription. Line of the about box.</extracomment>
        <translation>Tessaforma CAD ファミリーのドキュメント管理ツール</translation>
    </message>
    <message id="tessadocres-335">
        <source></source>
        <extracomment>Version. Line of the about box; a blank and the version number follow.</extracomment>
        <translation>バージョン</translation>
    </message>
    <message id="tessadocres-336">
        <source></source>
        <extracomment>Disclaimer. Line of the about box.</extracomment>
        <translation>このプログラムにはいかなる保証もありません。使用条件はライセンスに記載されています。</translation>
    </message>
    <message id="tessadocres-337">
        <source></source>
        <extracomment>AddProperty. Caption of the button that adds a property. Captions are state: it must differ from "Change".</extracomment>
        <translation>追加</translation>
    </message>
    <message id="tessadocres-338">
        <source></source>
        <extracomment>RemoveProperty. Button of the property pane.</extracomment>
        <translation>削除(&amp;M)</translation>
    </message>
    <message id="tessadocres-339">
        <source></source>
        <extracomment>ValueYes. Value of a yes or no property; compared when it is written: it must differ from "No".</extracomment>
        <translation>はい</translation>
    </message>
    <message id="tessadocres-340">
        <source></source>
        <extracomment>ValueNo. Value of a yes or no property; compared when it is written: it must differ from "Yes".</extracomment>
        <translation>いいえ</translation>
    </message>
    <message id="tessadocres-341">
        <source></source>
        <extracomment>NotLocked. Shown where the user of a lock stands.</extracomment>
        <translation>ロックされていません</translation>
    </message>
    <message id="tessadocres-342">
        <source></source>
        <extracomment>ToolbarRename. Toolbar button with the menu of rename, replace and copy.</extracomment>
        <translation>名前の変更(&amp;E)</translation>
    </message>
    <message id="tessadocres-343">
        <source></source>
        <extracomment>ToolbarView. Toolbar button with the menu of the panes.</extracomment>
        <translation>表示(&amp;V)</translation>
    </message>
    <message id="tessadocres-344">
        <source></source>
        <extracomment>ToolbarOpen. Toolbar button with the menu of the ways to open a document.</extracomment>
        <translation>開く(&amp;O)</translation>
    </message>
    <message id="tessadocres-345">
        <source></source>
        <extracomment>IconBarHeading. Heading above the icon bar.</extracomment>
        <translation>機能</translation>
    </message>
    <message id="tessadocres-346">
        <source></source>
        <extracomment>LockedBy. Label in the property pane; the lock's user follows.</extracomment>
        <translation>ロックしたユーザー</translation>
    </message>
    <message id="tessadocres-347">
        <source></source>
        <extracomment>FileName. Property of a search rule: the document's file name, compared with the property field. No double quotes.</extracomment>
        <translation>ファイル名</translation>
    </message>
    <message id="tessadocres-348">
        <source></source>
        <extracomment>UseFullScreen. Check box of the preview: one picture in the whole pane.</extracomment>
        <translation>画像を 1 つ表示(&amp;P)</translation>
    </message>
    <message id="tessadocres-349">
        <source></source>
        <extracomment>OpenedDocuments. Heading of a list.</extracomment>
        <translation>開いたドキュメント</translation>
    </message>
    <message id="tessadocres-350">
        <source></source>
        <extracomment>ExportedDone. In an export: the row was copied or updated.</extracomment>
        <translation>完了</translation>
    </message>
    <message id="tessadocres-351">
        <source></source>
        <extracomment>YesToAll. Button of the question whether to create a folder.</extracomment>
        <translation>すべてはい(&amp;L)</translation>
    </message>
    <message id="tessadocres-352">
        <source></source>
        <extracomment>CreateFolderQuestion. Question with the buttons Yes, Yes to all and No. Value: the folder.</extracomment>
        <translation>フォルダー %s は存在しません。作成しますか?</translation>
    </message>
    <message id="tessadocres-353">
        <source></source>
        <extracomment>ParentNotOpenedTip. Tool tip of a parent document. Value: reason.</extracomment>
        <translation>開けません: %s</translation>
    </message>
    <message id="tessadocres-354">
        <source></source>
        <extracomment>CopyRows. Status. Values: number of rows, number of missing documents.</extracomment>
        <translation>参照: %s、見つからないもの: %s</translation>
    </message>
    <message id="tessadocres-355">
        <source></source>
        <extracomment>CheckingTargets. Text of a progress label.</extracomment>
        <translation>コピー先を確認しています...</translation>
    </message>
    <message id="tessadocres-356">
        <source></source>
        <extracomment>CheckingTarget. Status. Value: the new name or replacement.</extracomment>
        <translation>%s を確認しています</translation>
    </message>
    <message id="tessadocres-357">
        <source></source>
        <extracomment>RenameDone. Status. Values: number of documents updated, number failed.</extracomment>
        <translation>更新済み: %s、失敗: %s</translation>
    </message>
    <message id="tessadocres-358">
        <source></source>
        <extracomment>UpdatingDocument. Status. Value: the document.</extracomment>
        <translation>%s を更新しています</translation>
    </message>
    <message id="tessadocres-359">
        <source></source>
        <extracomment>ReplaceWithLabel. Label in the rename pane; a colon follows.</extracomment>
        <translation>置換後のドキュメント</translation>
    </message>
    <message id="tessadocres-360">
        <source></source>
        <extracomment>SearchFirstQuestion. Question with the buttons Yes, No and Cancel.</extracomment>
        <translation>このドキュメントを使用しているドキュメントが検索されていないため、それらの参照は古いままになります。先に検索しますか?</translation>
    </message>
    <message id="tessadocres-361">
        <source></source>
        <extracomment>TickStays. Box when a row is ticked or cleared that must stay as it is.</extracomment>
        <translation>この行のチェックは変更できません: ドキュメントが読み取り専用であるか、常に更新される親ドキュメントです。</translation>
    </message>
    <message id="tessadocres-362">
        <source></source>
        <extracomment>PreviewOf. Status. Value: the document.</extracomment>
        <translation>%s のプレビュー</translation>
    </message>
    <message id="tessadocres-363">
        <source></source>
        <extracomment>NoDocument. Status.</extracomment>
        <translation>開いているドキュメントがありません。</translation>
    </message>
    <message id="tessadocres-364">
        <source></source>
        <extracomment>SearchError. Box. Value: reason.</extracomment>
        <translation>検索は途中で終了しました。%s</translation>
    </message>
    <message id="tessadocres-365">
        <source></source>
        <extracomment>TargetFolderReadOnly. Box. Value: the folder.</extracomment>
        <translation>フォルダー %s は読み取り専用です。別のフォルダーを選択してください。</translation>
    </message>
    <message id="tessadocres-366">
        <source></source>
        <extracomment>CopyingTo. Status. Value: the target.</extracomment>
        <translation>%s にコピーしています</translation>
    </message>
    <message id="tessadocres-367">
        <source></source>
        <extracomment>ConfigurationLoadError. Box. Value: reason.</extracomment>
        <translation>コンフィギュレーションを読み取れません。%s</translation>
    </message>
    <message id="tessadocres-368">
        <source></source>
        <extracomment>HyperlinkSaveError. Box. Value: reason.</extracomment>
        <translation>ハイパーリンクを保存できません。%s</translation>
    </message>
    <message id="tessadocres-369">
        <source></source>
        <extracomment>HyperlinkCount. Status. Value: their number.</extracomment>
        <translation>ハイパーリンク: %s</translation>
    </message>
    <message id="tessadocres-370">
        <source></source>
        <extracomment>OverwriteTitle. Title of a question.</extracomment>
        <translation>ファイルの上書き</translation>
    </message>
    <message id="tessadocres-371">
        <source></source>
        <extracomment>Kilobytes. Size of a file. Value: units of 1000 bytes.</extracomment>
        <translation>%s KB</translation>
    </message>
    <message id="tessadocres-372">
        <source></source>
        <extracomment>ExportError. Box. Value: reason.</extracomment>
        <translation>スプレッドシートに書き込めません。%s</translation>
    </message>
    <message id="tessadocres-373">
        <source></source>
        <extracomment>AccessInUse. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s は別のプログラムが使用しています。そのプログラムで閉じてから、もう一度実行してください。</translation>
    </message>
    <message id="tessadocres-374">
        <source></source>
        <extracomment>AccessReadOnly. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s は読み取り専用です。書き込み保護を解除してから、もう一度実行してください。</translation>
    </message>
    <message id="tessadocres-375">
        <source></source>
        <extracomment>AccessRefused. Box. Value: the document.</extracomment>
        <translation>ドキュメント %s に書き込めません。ドキュメントが存在し、変更する権限があるか確認してください。</translation>
    </message>
    <message id="tessadocres-376">
        <source></source>
        <extracomment>MenuUndelete. Menu entry of a configuration that is marked as deleted.</extracomment>
        <translation>削除の取り消し(&amp;U)</translation>
    </message>
    <message id="tessadocres-377">
        <source></source>
        <extracomment>FoldersLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>検索したフォルダー: %s</translation>
    </message>
    <message id="tessadocres-378">
        <source></source>
        <extracomment>DocumentsLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>検索したドキュメント: %s</translation>
    </message>
    <message id="tessadocres-379">
        <source></source>
        <extracomment>FilesNotRead. Text of a progress label. Value: their number.</extracomment>
        <translation>読み取れないファイル: %s</translation>
    </message>
    <message id="tessadocres-380">
        <source></source>
        <extracomment>LockedByOther. Box. Values: document, user.</extracomment>
        <translation>ドキュメント %s は %s によってロックされています。ロックを解除できるのはこのユーザーだけです。</translation>
    </message>
    <message id="tessadocres-381">
        <source></source>
        <extracomment>Lock. Menu entry.</extracomment>
        <translation>ロック</translation>
    </message>
    <message id="tessadocres-382">
        <source></source>
        <extracomment>Unlock. Menu entry.</extracomment>
        <translation>ロック解除</translation>
    </message>
    <message id="tessadocres-383">
        <source></source>
        <extracomment>OpenWebFolder. Menu entry and title of the dialog.</extracomment>
        <translation>Web フォルダーから開く</translation>
    </message>
    <message id="tessadocres-394">
        <source></source>
        <extracomment>UseViewer. Check box of the setup pane.</extracomment>
        <translation>3D ビューアーでモデルを表示する(&amp;3)</translation>
    </message>
    <message id="tessadocres-400">
        <source></source>
        <extracomment>LoggingFrame. Frame of the setup pane.</extracomment>
        <translation>パフォーマンスログ</translation>
    </message>
    <message id="tessadocres-401">
        <source></source>
        <extracomment>UseLogging. Check box of the setup pane.</extracomment>
        <translation>パフォーマンスログを送信する(&amp;L)</translation>
    </message>
</context>
</TS>

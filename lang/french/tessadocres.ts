<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name></name>
    <message id="tessadocres-1">
        <source></source>
        <extracomment>ReplaceButton. Button of the find and replace form that replaces the hit; in the copy pane, the button that opens this form.</extracomment>
        <translation>Re&amp;mplacer</translation>
    </message>
    <message id="tessadocres-2">
        <source></source>
        <extracomment>DocumentToFind. Label of the field with the document whose uses are looked for.</extracomment>
        <translation>Document</translation>
    </message>
    <message id="tessadocres-3">
        <source></source>
        <extracomment>CopyReferencesToo. Check box of the copy pane: copy the references of the document as well.</extracomment>
        <translation>Copier les ré&amp;férences</translation>
    </message>
    <message id="tessadocres-4">
        <source></source>
        <extracomment>ClearAll. Button of the copy pane while all rows are ticked. The caption is the button's state: it must differ from "Select all".</extracomment>
        <translation>Tout désélectionner</translation>
    </message>
    <message id="tessadocres-5">
        <source></source>
        <extracomment>CopyWord. Menu entry of the tree, title of a column, state of a parent row that is copied, and label (a colon follows). Compared with the state of a row: it must differ from "Update".</extracomment>
        <translation>Copier</translation>
    </message>
    <message id="tessadocres-6">
        <source></source>
        <extracomment>Path. Title of the first column of a list until its long form is set.</extracomment>
        <translation>Chemin</translation>
    </message>
    <message id="tessadocres-7">
        <source></source>
        <extracomment>Refresh. Button that reads a list again.</extracomment>
        <translation>Act&amp;ualiser</translation>
    </message>
    <message id="tessadocres-8">
        <source></source>
        <extracomment>FileNameColumn. Title of the column of the copy list with the name of the file.</extracomment>
        <translation>Nom de fichier</translation>
    </message>
    <message id="tessadocres-9">
        <source></source>
        <extracomment>ParentDocuments. Check box and frame of the copy pane around the list of documents that use the source.</extracomment>
        <translation>Documents parents</translation>
    </message>
    <message id="tessadocres-10">
        <source></source>
        <extracomment>Browse. Button that opens a file or folder dialog.</extracomment>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message id="tessadocres-11">
        <source></source>
        <extracomment>AsSuffix. Option of the copy pane: the text goes behind the names of the copies.</extracomment>
        <translation>En s&amp;uffixe</translation>
    </message>
    <message id="tessadocres-12">
        <source></source>
        <extracomment>AsPrefix. Option of the copy pane: the text goes in front of the names of the copies.</extracomment>
        <translation>En préfi&amp;xe</translation>
    </message>
    <message id="tessadocres-13">
        <source></source>
        <extracomment>TargetFolder. Label in the copy pane; a colon follows.</extracomment>
        <translation>Dossier cible</translation>
    </message>
    <message id="tessadocres-14">
        <source></source>
        <extracomment>NewName. Label in the rename and copy panes; a colon follows.</extracomment>
        <translation>Nouveau nom</translation>
    </message>
    <message id="tessadocres-15">
        <source></source>
        <extracomment>Apply. Button that carries out what the pane shows.</extracomment>
        <translation>App&amp;liquer</translation>
    </message>
    <message id="tessadocres-16">
        <source></source>
        <extracomment>Reset. Button that empties the list of documents found, or drops edits.</extracomment>
        <translation>Ré&amp;initialiser</translation>
    </message>
    <message id="tessadocres-17">
        <source></source>
        <extracomment>FindAgain. Caption of a search button after its first search. Captions are state: it must differ from "Stop".</extracomment>
        <translation>Relancer la recherche</translation>
    </message>
    <message id="tessadocres-18">
        <source></source>
        <extracomment>LookIn. Label of a field with folders.</extracomment>
        <translation>Rechercher dans</translation>
    </message>
    <message id="tessadocres-19">
        <source></source>
        <extracomment>UpdateWord. Title of the column with the ticks, and state of a parent row that is brought up to date. It must differ from "Copy".</extracomment>
        <translation>Mettre à jour</translation>
    </message>
    <message id="tessadocres-20">
        <source></source>
        <extracomment>UsedBy. Heading of a list of documents that use another.</extracomment>
        <translation>Utilisé par</translation>
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
        <translation>Numéro</translation>
    </message>
    <message id="tessadocres-25">
        <source></source>
        <extracomment>MenuOpen. Menu entry that opens the document in the CAD program.</extracomment>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="tessadocres-26">
        <source></source>
        <extracomment>MenuExport. Menu entry that writes the list to a spreadsheet.</extracomment>
        <translation>&amp;Exporter la liste</translation>
    </message>
    <message id="tessadocres-27">
        <source></source>
        <extracomment>DocumentColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>Document</translation>
    </message>
    <message id="tessadocres-28">
        <source></source>
        <extracomment>FileColumn. Title of a column in its long form in some lists, in its short form in others: a word for both names and paths.</extracomment>
        <translation>Fichier</translation>
    </message>
    <message id="tessadocres-29">
        <source></source>
        <extracomment>SourcePath. Title of the copy list's column of sources when it shows whole paths.</extracomment>
        <translation>Chemin source</translation>
    </message>
    <message id="tessadocres-30">
        <source></source>
        <extracomment>TargetPath. Title of a column of targets when it shows whole paths.</extracomment>
        <translation>Chemin cible</translation>
    </message>
    <message id="tessadocres-31">
        <source></source>
        <extracomment>HolderName. Title of the column of documents that use the target when it shows file names.</extracomment>
        <translation>Utilisé dans</translation>
    </message>
    <message id="tessadocres-32">
        <source></source>
        <extracomment>TargetTip. Tool tip of the target of a parent document.</extracomment>
        <translation>Double-cliquez pour choisir une autre cible.</translation>
    </message>
    <message id="tessadocres-33">
        <source></source>
        <extracomment>DefaultPrefix. What the copy pane puts in front of names at first; the blank at its end is part of it.</extracomment>
        <translation>Copie de </translation>
    </message>
    <message id="tessadocres-34">
        <source></source>
        <extracomment>CopyTargetWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>destination des copies</translation>
    </message>
    <message id="tessadocres-35">
        <source></source>
        <extracomment>PartFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Pièces (*.tfmprt, *.prt)|*.tfmprt;*.prt</translation>
    </message>
    <message id="tessadocres-36">
        <source></source>
        <extracomment>AssemblyFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Assemblages (*.tfmasm, *.asm)|*.tfmasm;*.asm</translation>
    </message>
    <message id="tessadocres-37">
        <source></source>
        <extracomment>ChooseDocument. Title of the dialogs that choose a target file or the replacement of a missing file.</extracomment>
        <translation>Choisir un document</translation>
    </message>
    <message id="tessadocres-38">
        <source></source>
        <extracomment>ParentReadOnly. Box when the row of a read-only parent document is ticked.</extracomment>
        <translation>Ce document est en lecture seule et ne peut donc pas être mis à jour. Retirez d’abord sa protection en écriture.</translation>
    </message>
    <message id="tessadocres-39">
        <source></source>
        <extracomment>DrawingFilter. File dialog filter, as pairs of label and patterns.</extracomment>
        <translation>Mises en plan (*.tfmdrw, *.drw)|*.tfmdrw;*.drw</translation>
    </message>
    <message id="tessadocres-40">
        <source></source>
        <extracomment>Close. Button that closes a form.</extracomment>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="tessadocres-41">
        <source></source>
        <extracomment>ExportDone. Status after an export. Value: number of lines.</extracomment>
        <translation>La liste a été écrite dans la feuille de calcul, lignes : %s</translation>
    </message>
    <message id="tessadocres-42">
        <source></source>
        <extracomment>ExportFailed. Status after an export that failed.</extracomment>
        <translation>La liste n’a pas pu être écrite dans la feuille de calcul.</translation>
    </message>
    <message id="tessadocres-43">
        <source></source>
        <extracomment>ExportEmpty. Box when an empty list is exported.</extracomment>
        <translation>La liste est vide, il n’y a rien à exporter.</translation>
    </message>
    <message id="tessadocres-44">
        <source></source>
        <extracomment>Status. Title of a column in an export, and suggested name of a property.</extracomment>
        <translation>État</translation>
    </message>
    <message id="tessadocres-45">
        <source></source>
        <extracomment>TickedYes. In an export: the row is ticked.</extracomment>
        <translation>Oui</translation>
    </message>
    <message id="tessadocres-46">
        <source></source>
        <extracomment>TickedNo. In an export: the row is not ticked.</extracomment>
        <translation>Non</translation>
    </message>
    <message id="tessadocres-47">
        <source></source>
        <extracomment>Ok. Button.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="tessadocres-48">
        <source></source>
        <extracomment>RowMissing. Box when a missing document of a list is opened.</extracomment>
        <translation>Ce document est manquant et ne peut pas être ouvert.</translation>
    </message>
    <message id="tessadocres-49">
        <source></source>
        <extracomment>SelectAll. Button of the copy pane while not all rows are ticked. The caption is the button's state: it must differ from "Clear all".</extracomment>
        <translation>Tout sélectionner</translation>
    </message>
    <message id="tessadocres-51">
        <source></source>
        <extracomment>FolderNotMade. Status, box and tool tip during a copy. Value: the folder.</extracomment>
        <translation>Le dossier %s ne peut pas être créé. Vérifiez que vous avez le droit d’y écrire.</translation>
    </message>
    <message id="tessadocres-52">
        <source></source>
        <extracomment>RenameLoadFailed. Box of the rename pane. Values: document, reason.</extracomment>
        <translation>Impossible de préparer le document %s pour le renommer. %s</translation>
    </message>
    <message id="tessadocres-53">
        <source></source>
        <extracomment>Stop. Caption of a search button while it searches. Captions are state: it must differ from "Find now" and "Find again".</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message id="tessadocres-55">
        <source></source>
        <extracomment>NotFound. Mark of something that is not there.</extracomment>
        <translation>Introuvable</translation>
    </message>
    <message id="tessadocres-57">
        <source></source>
        <extracomment>NoTargetFile. Box when a copy is started without a target.</extracomment>
        <translation>Indiquez le fichier que la copie doit avoir.</translation>
    </message>
    <message id="tessadocres-58">
        <source></source>
        <extracomment>TargetOfOtherType. Box when the target's extension is of another type.</extracomment>
        <translation>La copie doit être du même type que la source : pièce, assemblage ou mise en plan.</translation>
    </message>
    <message id="tessadocres-59">
        <source></source>
        <extracomment>SourceMissing. Question with the buttons Yes, No, No to all and Cancel before a copy. Value: the document.</extracomment>
        <translation>Le document %s est manquant. Voulez-vous en choisir un autre à sa place ?</translation>
    </message>
    <message id="tessadocres-60">
        <source></source>
        <extracomment>Working. Text of a progress label.</extracomment>
        <translation>En cours...</translation>
    </message>
    <message id="tessadocres-61">
        <source></source>
        <extracomment>Ready. Text of a progress label at the end.</extracomment>
        <translation>Prêt</translation>
    </message>
    <message id="tessadocres-62">
        <source></source>
        <extracomment>CopyCancelled. Status after Cancel at a question. Files copied so far stay.</extracomment>
        <translation>La copie a été annulée.</translation>
    </message>
    <message id="tessadocres-63">
        <source></source>
        <extracomment>CopyNotMade. Tool tip of a row that was left out of a copy.</extracomment>
        <translation>Non copié.</translation>
    </message>
    <message id="tessadocres-64">
        <source></source>
        <extracomment>TargetKept. Tool tip of a row whose target exists and was not to be overwritten.</extracomment>
        <translation>Non copié : le fichier existant a été conservé.</translation>
    </message>
    <message id="tessadocres-65">
        <source></source>
        <extracomment>RowNotCopied. Tool tip of a row that was passed over.</extracomment>
        <translation>Non copié : la ligne n’est pas cochée, ou son document est manquant.</translation>
    </message>
    <message id="tessadocres-66">
        <source></source>
        <extracomment>CopyDone. Status at the end of a copy. Values: number of rows copied, number of rows failed.</extracomment>
        <translation>Copiés : %s, en échec : %s</translation>
    </message>
    <message id="tessadocres-68">
        <source></source>
        <extracomment>CopyNotOpened. Question. Value: the copy.</extracomment>
        <translation>Les références de la copie %s ne peuvent pas être mises à jour, car elle ou sa source ne peut pas être ouverte. Continuer avec les autres documents ?</translation>
    </message>
    <message id="tessadocres-69">
        <source></source>
        <extracomment>NotUpdatedTip. Tool tip of a row after a failure. Value: reason.</extracomment>
        <translation>Non mis à jour : %s</translation>
    </message>
    <message id="tessadocres-70">
        <source></source>
        <extracomment>NotSaved. Question. Values: document, reason.</extracomment>
        <translation>Le document %s ne peut pas être enregistré. %s Continuer avec les autres documents ?</translation>
    </message>
    <message id="tessadocres-72">
        <source></source>
        <extracomment>UpdatingReferences. Status. Value: the document.</extracomment>
        <translation>Mise à jour des références dans %s</translation>
    </message>
    <message id="tessadocres-73">
        <source></source>
        <extracomment>NotOpened. Question. Values: document, reason.</extracomment>
        <translation>Le document %s ne peut pas être ouvert pour mettre à jour ses références. %s Continuer avec les autres documents ?</translation>
    </message>
    <message id="tessadocres-74">
        <source></source>
        <extracomment>OverwriteQuestion. Question with the buttons Yes, No and Cancel. Value: the file.</extracomment>
        <translation>Le fichier %s existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message id="tessadocres-75">
        <source></source>
        <extracomment>SaveChanges. Button of the editors that writes the pending edits.</extracomment>
        <translation>&amp;Enregistrer les modifications</translation>
    </message>
    <message id="tessadocres-76">
        <source></source>
        <extracomment>HoldersFound. Status after a search for documents that use the source. Value: number of rows.</extracomment>
        <translation>Références trouvées : %s</translation>
    </message>
    <message id="tessadocres-77">
        <source></source>
        <extracomment>ParentRowTip. Tool tip of a row of the parent list.</extracomment>
        <translation>Cliquez sur la case pour choisir ce que devient ce document : laissé tel quel, mis à jour ou (pour une mise en plan) copié.</translation>
    </message>
    <message id="tessadocres-78">
        <source></source>
        <extracomment>ReadOnlyMark. Mark of a read-only document, put in front of its name in one list and behind it in another: a blank at both ends.</extracomment>
        <translation> (lecture seule) </translation>
    </message>
    <message id="tessadocres-79">
        <source></source>
        <extracomment>Help. Toolbar button, menu entry and button of the description strip.</extracomment>
        <translation>Aide</translation>
    </message>
    <message id="tessadocres-80">
        <source></source>
        <extracomment>SearchScope. Title of the form that says where and for what to search.</extracomment>
        <translation>Étendue de la recherche</translation>
    </message>
    <message id="tessadocres-81">
        <source></source>
        <extracomment>PropertyName. Title of the column with the names of properties.</extracomment>
        <translation>Nom</translation>
    </message>
    <message id="tessadocres-82">
        <source></source>
        <extracomment>PropertyValue. Title of the column with the values of properties.</extracomment>
        <translation>Valeur</translation>
    </message>
    <message id="tessadocres-83">
        <source></source>
        <extracomment>SearchScopeFrame. Frame of the search scope form.</extracomment>
        <translation>Rechercher dans</translation>
    </message>
    <message id="tessadocres-84">
        <source></source>
        <extracomment>FindMirrored. Check box: find parts that mirror the document.</extracomment>
        <translation>S&amp;ymétriques</translation>
    </message>
    <message id="tessadocres-85">
        <source></source>
        <extracomment>FolderLists. Button that drops down the named folder lists.</extracomment>
        <translation>Lis&amp;tes de dossiers</translation>
    </message>
    <message id="tessadocres-86">
        <source></source>
        <extracomment>RecentFolders. Heading of a list of folders.</extracomment>
        <translation>Dossiers récents</translation>
    </message>
    <message id="tessadocres-87">
        <source></source>
        <extracomment>FindReferences. Check box: find plain references to the document.</extracomment>
        <translation>Ré&amp;férences</translation>
    </message>
    <message id="tessadocres-88">
        <source></source>
        <extracomment>FindInContext. Check box: find parts that refer to the assembly in context.</extracomment>
        <translation>En conte&amp;xte</translation>
    </message>
    <message id="tessadocres-89">
        <source></source>
        <extracomment>Cancel. Button.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message id="tessadocres-90">
        <source></source>
        <extracomment>LookInWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>lieu de recherche</translation>
    </message>
    <message id="tessadocres-91">
        <source></source>
        <extracomment>ChooseFolder. Title of the folder dialog. Value: what the folder is for.</extracomment>
        <translation>Choisir un dossier : %s</translation>
    </message>
    <message id="tessadocres-92">
        <source></source>
        <extracomment>BecomesMark. Stands between an old and a new name that is not saved yet; never empty.</extracomment>
        <translation> -&gt; </translation>
    </message>
    <message id="tessadocres-93">
        <source></source>
        <extracomment>ConfigurationNameEmpty. Box when a configuration is given an empty name.</extracomment>
        <translation>Une configuration doit avoir un nom.</translation>
    </message>
    <message id="tessadocres-94">
        <source></source>
        <extracomment>ConfigurationNameTaken. Box when a configuration is given a name that another one has.</extracomment>
        <translation>Une autre configuration porte déjà ce nom. Choisissez un nom différent.</translation>
    </message>
    <message id="tessadocres-95">
        <source></source>
        <extracomment>ConfigurationStays. Box when a configuration that must stay is deleted.</extracomment>
        <translation>Cette configuration ne peut pas être supprimée.</translation>
    </message>
    <message id="tessadocres-96">
        <source></source>
        <extracomment>ConfigurationsNotSaved. Status after a save that failed.</extracomment>
        <translation>Les configurations n’ont pas été enregistrées en totalité.</translation>
    </message>
    <message id="tessadocres-97">
        <source></source>
        <extracomment>ConfigurationsSaved. Status.</extracomment>
        <translation>Les configurations ont été enregistrées.</translation>
    </message>
    <message id="tessadocres-98">
        <source></source>
        <extracomment>ConfigurationSaveError. Box. Value: reason.</extracomment>
        <translation>Les configurations ne peuvent pas être enregistrées. %s</translation>
    </message>
    <message id="tessadocres-99">
        <source></source>
        <extracomment>ConfigurationsOf. Root of the configuration tree. Value: title of the document.</extracomment>
        <translation>Configurations de %s</translation>
    </message>
    <message id="tessadocres-100">
        <source></source>
        <extracomment>ConfigurationCount. Status. Value: their number.</extracomment>
        <translation>Configurations : %s</translation>
    </message>
    <message id="tessadocres-101">
        <source></source>
        <extracomment>ConfigurationsNotLoaded. Status. Value: the document.</extracomment>
        <translation>Les configurations de %s ne peuvent pas être affichées.</translation>
    </message>
    <message id="tessadocres-103">
        <source></source>
        <extracomment>MatchCase. Check box of the find and replace form.</extracomment>
        <translation>Respecter la &amp;casse</translation>
    </message>
    <message id="tessadocres-104">
        <source></source>
        <extracomment>FindNext. Button of the find and replace form.</extracomment>
        <translation>Rechercher le &amp;suivant</translation>
    </message>
    <message id="tessadocres-105">
        <source></source>
        <extracomment>ReplaceAll. Button of the find and replace form.</extracomment>
        <translation>&amp;Tout remplacer</translation>
    </message>
    <message id="tessadocres-106">
        <source></source>
        <extracomment>ReplaceWith. Label in the find and replace form.</extracomment>
        <translation>Remplacer par :</translation>
    </message>
    <message id="tessadocres-107">
        <source></source>
        <extracomment>FindWhat. Label in the find and replace form.</extracomment>
        <translation>Rechercher :</translation>
    </message>
    <message id="tessadocres-108">
        <source></source>
        <extracomment>TextNotFound. Box of the find and replace form. Value: the text.</extracomment>
        <translation>Le texte « %s » est introuvable.</translation>
    </message>
    <message id="tessadocres-109">
        <source></source>
        <extracomment>FindUpwards. Check box of a find form: from the end to the start.</extracomment>
        <translation>Rechercher vers le &amp;haut</translation>
    </message>
    <message id="tessadocres-110">
        <source></source>
        <extracomment>HyperlinksSaved. Status.</extracomment>
        <translation>Les liens hypertexte ont été enregistrés.</translation>
    </message>
    <message id="tessadocres-111">
        <source></source>
        <extracomment>HyperlinksNotSaved. Status after a save that failed.</extracomment>
        <translation>Les liens hypertexte n’ont pas été enregistrés en totalité.</translation>
    </message>
    <message id="tessadocres-113">
        <source></source>
        <extracomment>MenuOpenFile. Menu entry.</extracomment>
        <translation>&amp;Ouvrir un document...</translation>
    </message>
    <message id="tessadocres-114">
        <source></source>
        <extracomment>HyperlinksNotLoaded. Status. Value: the document.</extracomment>
        <translation>Les liens hypertexte de %s ne peuvent pas être affichés.</translation>
    </message>
    <message id="tessadocres-115">
        <source></source>
        <extracomment>HyperlinkLoadError. Box. Value: reason.</extracomment>
        <translation>Les liens hypertexte ne peuvent pas être lus. %s</translation>
    </message>
    <message id="tessadocres-116">
        <source></source>
        <extracomment>Size. Title of a column.</extracomment>
        <translation>Taille</translation>
    </message>
    <message id="tessadocres-117">
        <source></source>
        <extracomment>Type. Title of a column: the type of a file or property, or the table of a reference.</extracomment>
        <translation>Type</translation>
    </message>
    <message id="tessadocres-118">
        <source></source>
        <extracomment>LastSaved. Label in the property pane and title of a column.</extracomment>
        <translation>Dernier enregistrement</translation>
    </message>
    <message id="tessadocres-119">
        <source></source>
        <extracomment>Attributes. Title of a column with the letters of the file's attributes.</extracomment>
        <translation>Attributs</translation>
    </message>
    <message id="tessadocres-120">
        <source></source>
        <extracomment>ReferenceListError. Box. Value: reason.</extracomment>
        <translation>Les références ne peuvent pas être listées. %s</translation>
    </message>
    <message id="tessadocres-121">
        <source></source>
        <extracomment>DocumentNotReadable. Box. Value: the document.</extracomment>
        <translation>Le document %s ne peut pas être lu.</translation>
    </message>
    <message id="tessadocres-122">
        <source></source>
        <extracomment>AppTitle. Name of the program: title of all boxes.</extracomment>
        <translation>Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-123">
        <source></source>
        <extracomment>NoToAll. Button of a question with up to four buttons.</extracomment>
        <translation>Non pour &amp;tous</translation>
    </message>
    <message id="tessadocres-124">
        <source></source>
        <extracomment>No. Button of a question with up to four buttons.</extracomment>
        <translation>&amp;Non</translation>
    </message>
    <message id="tessadocres-125">
        <source></source>
        <extracomment>Yes. Button of a question with up to four buttons.</extracomment>
        <translation>&amp;Oui</translation>
    </message>
    <message id="tessadocres-126">
        <source></source>
        <extracomment>Preview. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Aperçu</translation>
    </message>
    <message id="tessadocres-127">
        <source></source>
        <extracomment>Properties. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Propriétés</translation>
    </message>
    <message id="tessadocres-128">
        <source></source>
        <extracomment>References. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Références</translation>
    </message>
    <message id="tessadocres-129">
        <source></source>
        <extracomment>WhereUsed. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Cas d’emploi</translation>
    </message>
    <message id="tessadocres-130">
        <source></source>
        <extracomment>Search. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Recherche</translation>
    </message>
    <message id="tessadocres-131">
        <source></source>
        <extracomment>Configurations. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Configurations</translation>
    </message>
    <message id="tessadocres-132">
        <source></source>
        <extracomment>Hyperlinks. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Liens hypertexte</translation>
    </message>
    <message id="tessadocres-133">
        <source></source>
        <extracomment>Setup. Menu entry, caption in the icon bar and heading of the pane.</extracomment>
        <translation>Paramètres</translation>
    </message>
    <message id="tessadocres-134">
        <source></source>
        <extracomment>Options. Heading of a group of options.</extracomment>
        <translation>Options</translation>
    </message>
    <message id="tessadocres-135">
        <source></source>
        <extracomment>PreviewHelp. Description strip of the preview.</extracomment>
        <translation>Affiche l’image enregistrée dans le document. Cliquez sur des documents de l’arborescence pour voir leurs images côte à côte.</translation>
    </message>
    <message id="tessadocres-136">
        <source></source>
        <extracomment>PropertiesHelp. Description strip of the property pane.</extracomment>
        <translation>Affiche et modifie ce que le document dit de lui-même : résumé, propriétés personnalisées et propriétés de chaque configuration.</translation>
    </message>
    <message id="tessadocres-137">
        <source></source>
        <extracomment>ReferencesHelp. Description strip of the reference pane.</extracomment>
        <translation>Liste le document et ce qu’il référence directement, avec la taille, la date et les attributs de chaque fichier.</translation>
    </message>
    <message id="tessadocres-138">
        <source></source>
        <extracomment>ConfigurationsHelp. Description strip of the configuration pane.</extracomment>
        <translation>Renomme et supprime les configurations du document. Rien n’est écrit avant l’enregistrement.</translation>
    </message>
    <message id="tessadocres-139">
        <source></source>
        <extracomment>WhereUsedHelp. Description strip of the where-used pane.</extracomment>
        <translation>Trouve les documents qui utilisent le document, dans les dossiers que vous indiquez.</translation>
    </message>
    <message id="tessadocres-140">
        <source></source>
        <extracomment>SearchHelp. Description strip of the search pane.</extracomment>
        <translation>Trouve des documents d’après des règles sur leurs propriétés, dans les dossiers que vous indiquez.</translation>
    </message>
    <message id="tessadocres-141">
        <source></source>
        <extracomment>RenameHelp. Description strip of the rename pane.</extracomment>
        <translation>Renomme le document ou en met un autre à sa place, et met à jour les documents qui l’utilisent.</translation>
    </message>
    <message id="tessadocres-142">
        <source></source>
        <extracomment>CopyHelp. Description strip of the copy pane.</extracomment>
        <translation>Copie le document avec ses références. Les copies se référencent entre elles ; les documents parents peuvent aussi être mis à jour ou copiés.</translation>
    </message>
    <message id="tessadocres-143">
        <source></source>
        <extracomment>HyperlinksHelp. Description strip of the hyperlink pane.</extracomment>
        <translation>Modifie les liens hypertexte enregistrés dans le document. Double-cliquez sur un lien pour l’ouvrir. Rien n’est écrit avant l’enregistrement.</translation>
    </message>
    <message id="tessadocres-144">
        <source></source>
        <extracomment>SetupHelp. Description strip of the setup pane.</extracomment>
        <translation>Règle les options et gère les listes de dossiers nommées que proposent les volets de recherche.</translation>
    </message>
    <message id="tessadocres-145">
        <source></source>
        <extracomment>OpenFilter. Filter of the open dialog, as pairs of label and patterns.</extracomment>
        <translation>Tous les documents (*.tfmasm, *.tfmprt, *.tfmdrw, *.asm, *.prt)|*.tfmasm;*.tfmprt;*.tfmdrw;*.asm;*.prt|Assemblages (*.tfmasm, *.asm)|*.tfmasm;*.asm|Pièces (*.tfmprt, *.prt)|*.tfmprt;*.prt|Mises en plan (*.tfmdrw)|*.tfmdrw</translation>
    </message>
    <message id="tessadocres-146">
        <source></source>
        <extracomment>OldFormat. Shown instead of a list, and as status.</extracomment>
        <translation>Ce document est d’un format plus ancien. Enregistrez-le une fois dans le logiciel de CAO pour le modifier ici.</translation>
    </message>
    <message id="tessadocres-147">
        <source></source>
        <extracomment>RelationDefault. How a document uses another: every case that has no word of its own. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Référence</translation>
    </message>
    <message id="tessadocres-148">
        <source></source>
        <extracomment>RelationAssembly. How a document uses another: a part that refers to an assembly. No path separator, no colon; differs from the two others.</extracomment>
        <translation>En contexte</translation>
    </message>
    <message id="tessadocres-149">
        <source></source>
        <extracomment>RelationPart. How a document uses another: a part that refers to a part. No path separator, no colon; differs from the two others.</extracomment>
        <translation>Symétrique</translation>
    </message>
    <message id="tessadocres-150">
        <source></source>
        <extracomment>Details. Button that shows the reason of a failure.</extracomment>
        <translation>&amp;Détails</translation>
    </message>
    <message id="tessadocres-151">
        <source></source>
        <extracomment>CurrentDocument. Label of the document that a pane shows.</extracomment>
        <translation>Document actif</translation>
    </message>
    <message id="tessadocres-152">
        <source></source>
        <extracomment>SummaryTab. Tab of the property pane.</extracomment>
        <translation>Résumé</translation>
    </message>
    <message id="tessadocres-153">
        <source></source>
        <extracomment>CustomTab. Tab of the property pane.</extracomment>
        <translation>Personnalisé</translation>
    </message>
    <message id="tessadocres-154">
        <source></source>
        <extracomment>ConfigurationTab. Tab of the property pane.</extracomment>
        <translation>Propre à la configuration</translation>
    </message>
    <message id="tessadocres-155">
        <source></source>
        <extracomment>NameField. Label of the field with a property's name.</extracomment>
        <translation>Nom</translation>
    </message>
    <message id="tessadocres-156">
        <source></source>
        <extracomment>ValueField. Label of the field with a property's value.</extracomment>
        <translation>Valeur</translation>
    </message>
    <message id="tessadocres-157">
        <source></source>
        <extracomment>Comments. Label in the property pane and property of a search rule.</extracomment>
        <translation>Commentaires</translation>
    </message>
    <message id="tessadocres-158">
        <source></source>
        <extracomment>Keywords. Label in the property pane and property of a search rule.</extracomment>
        <translation>Mots clés</translation>
    </message>
    <message id="tessadocres-159">
        <source></source>
        <extracomment>Author. Label in the property pane and property of a search rule.</extracomment>
        <translation>Auteur</translation>
    </message>
    <message id="tessadocres-160">
        <source></source>
        <extracomment>Subject. Label in the property pane and property of a search rule.</extracomment>
        <translation>Sujet</translation>
    </message>
    <message id="tessadocres-161">
        <source></source>
        <extracomment>Title. Label in the property pane and property of a search rule.</extracomment>
        <translation>Titre</translation>
    </message>
    <message id="tessadocres-162">
        <source></source>
        <extracomment>TypeField. Label of the field with a property's type.</extracomment>
        <translation>Type</translation>
    </message>
    <message id="tessadocres-163">
        <source></source>
        <extracomment>Change. Caption of the button that adds, when the name exists. Captions are state: it must differ from "Add".</extracomment>
        <translation>Modifier</translation>
    </message>
    <message id="tessadocres-164">
        <source></source>
        <extracomment>TypeText. Type of a property. The four types must differ.</extracomment>
        <translation>Texte</translation>
    </message>
    <message id="tessadocres-165">
        <source></source>
        <extracomment>TypeDate. Type of a property. The four types must differ.</extracomment>
        <translation>Date</translation>
    </message>
    <message id="tessadocres-166">
        <source></source>
        <extracomment>TypeNumber. Type of a property. The four types must differ.</extracomment>
        <translation>Nombre</translation>
    </message>
    <message id="tessadocres-167">
        <source></source>
        <extracomment>TypeYesNo. Type of a property. The four types must differ.</extracomment>
        <translation>Oui ou non</translation>
    </message>
    <message id="tessadocres-168">
        <source></source>
        <extracomment>ValueOfOtherType. Box when a property is added.</extracomment>
        <translation>La valeur ne convient pas au type. Entrez une date ou un nombre selon le type, ou choisissez un autre type.</translation>
    </message>
    <message id="tessadocres-169">
        <source></source>
        <extracomment>PropertiesNotOpened. Box. Value: the document.</extracomment>
        <translation>Le document %s ne peut pas être ouvert, les propriétés n’ont donc pas été écrites. Vos modifications sont toujours dans le volet.</translation>
    </message>
    <message id="tessadocres-170">
        <source></source>
        <extracomment>PropertiesWriteError. Box. Value: reason.</extracomment>
        <translation>Les propriétés ne peuvent pas être écrites. %s</translation>
    </message>
    <message id="tessadocres-171">
        <source></source>
        <extracomment>LeaveConfiguration. Question with the buttons Yes and No.</extracomment>
        <translation>Les propriétés de la configuration ont été modifiées. Les écrire avant de continuer ?</translation>
    </message>
    <message id="tessadocres-172">
        <source></source>
        <extracomment>NoConfigurationProperties. Box.</extracomment>
        <translation>Les propriétés de cette configuration ne peuvent pas être lues.</translation>
    </message>
    <message id="tessadocres-173">
        <source></source>
        <extracomment>ConfigurationPropertiesError. Box. Value: reason.</extracomment>
        <translation>Les propriétés de la configuration ne peuvent pas être affichées. %s</translation>
    </message>
    <message id="tessadocres-174">
        <source></source>
        <extracomment>PropertiesOf. Status. Value: the document.</extracomment>
        <translation>Propriétés de %s</translation>
    </message>
    <message id="tessadocres-175">
        <source></source>
        <extracomment>NoProperties. Box.</extracomment>
        <translation>Ce document ne contient aucune propriété lisible.</translation>
    </message>
    <message id="tessadocres-176">
        <source></source>
        <extracomment>NoPropertiesOf. Status. Value: the document.</extracomment>
        <translation>Les propriétés de %s ne peuvent pas être affichées.</translation>
    </message>
    <message id="tessadocres-177">
        <source></source>
        <extracomment>PropertiesLoadError. Box. Value: reason.</extracomment>
        <translation>Les propriétés ne peuvent pas être lues. %s</translation>
    </message>
    <message id="tessadocres-178">
        <source></source>
        <extracomment>PropertiesShowError. Box of the property pane. Value: reason.</extracomment>
        <translation>Le document ne peut pas être affiché. %s</translation>
    </message>
    <message id="tessadocres-179">
        <source></source>
        <extracomment>PropertyCreatedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Créé par</translation>
    </message>
    <message id="tessadocres-180">
        <source></source>
        <extracomment>PropertyCreatedOn. Suggested name of a property.</extracomment>
        <translation>Date de création</translation>
    </message>
    <message id="tessadocres-181">
        <source></source>
        <extracomment>PropertyDateCompleted. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Date d’achèvement</translation>
    </message>
    <message id="tessadocres-182">
        <source></source>
        <extracomment>PropertyDepartment. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Service</translation>
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
        <translation>Numéro de document</translation>
    </message>
    <message id="tessadocres-187">
        <source></source>
        <extracomment>PropertyEditor. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Rédacteur</translation>
    </message>
    <message id="tessadocres-188">
        <source></source>
        <extracomment>PropertyForwardTo. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Transmettre à</translation>
    </message>
    <message id="tessadocres-189">
        <source></source>
        <extracomment>PropertyGroup. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Groupe</translation>
    </message>
    <message id="tessadocres-190">
        <source></source>
        <extracomment>PropertyLanguage. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Langue</translation>
    </message>
    <message id="tessadocres-191">
        <source></source>
        <extracomment>PropertyMailstop. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Boîte interne</translation>
    </message>
    <message id="tessadocres-192">
        <source></source>
        <extracomment>PropertyMatter. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Affaire</translation>
    </message>
    <message id="tessadocres-193">
        <source></source>
        <extracomment>PropertyOffice. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Bureau</translation>
    </message>
    <message id="tessadocres-194">
        <source></source>
        <extracomment>PropertyOwner. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Propriétaire</translation>
    </message>
    <message id="tessadocres-195">
        <source></source>
        <extracomment>PropertyProject. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Projet</translation>
    </message>
    <message id="tessadocres-196">
        <source></source>
        <extracomment>PropertyPublisher. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Éditeur</translation>
    </message>
    <message id="tessadocres-197">
        <source></source>
        <extracomment>PropertyPurpose. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Objectif</translation>
    </message>
    <message id="tessadocres-198">
        <source></source>
        <extracomment>PropertyReceivedFrom. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Reçu de</translation>
    </message>
    <message id="tessadocres-199">
        <source></source>
        <extracomment>PropertyRecordedBy. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Enregistré par</translation>
    </message>
    <message id="tessadocres-200">
        <source></source>
        <extracomment>PropertyRecordedDate. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Date d’enregistrement</translation>
    </message>
    <message id="tessadocres-201">
        <source></source>
        <extracomment>PropertyReference. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Référence</translation>
    </message>
    <message id="tessadocres-202">
        <source></source>
        <extracomment>PropertySource. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Source</translation>
    </message>
    <message id="tessadocres-203">
        <source></source>
        <extracomment>PropertyTelephoneNumber. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Numéro de téléphone</translation>
    </message>
    <message id="tessadocres-204">
        <source></source>
        <extracomment>PropertyTypist. Suggested name of a property, and property of a search rule.</extracomment>
        <translation>Dactylographe</translation>
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
        <translation>Renommer</translation>
    </message>
    <message id="tessadocres-208">
        <source></source>
        <extracomment>HolderPath. Title of the column of documents that use the target when it shows whole paths.</extracomment>
        <translation>Utilisé dans (chemin)</translation>
    </message>
    <message id="tessadocres-209">
        <source></source>
        <extracomment>ChooseReplacement. Title of the file dialog of a replacement.</extracomment>
        <translation>Choisir le document de remplacement</translation>
    </message>
    <message id="tessadocres-210">
        <source></source>
        <extracomment>DocumentsToUpdate. Check box and frame of the rename pane around the list of documents to update.</extracomment>
        <translation>Documents qui l’utilisent</translation>
    </message>
    <message id="tessadocres-211">
        <source></source>
        <extracomment>TargetCollides. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s ne convient pas ici. Le document lui-même ou un document au-dessus porte ce nom, ou il référence un document au-dessus, ou ses références ne peuvent pas être vérifiées.</translation>
    </message>
    <message id="tessadocres-213">
        <source></source>
        <extracomment>TargetTypeUnknown. Box when a new name or a replacement is refused. Value: its name.</extracomment>
        <translation>%s n’est pas un nom de document. Donnez-lui l’extension d’une pièce, d’un assemblage ou d’une mise en plan.</translation>
    </message>
    <message id="tessadocres-214">
        <source></source>
        <extracomment>TargetUnchanged. Box when a new name or a replacement is refused.</extracomment>
        <translation>C’est le document lui-même. Choisissez-en un autre.</translation>
    </message>
    <message id="tessadocres-216">
        <source></source>
        <extracomment>TargetTypeDiffers. Box when a new name or a replacement is refused.</extracomment>
        <translation>Le nouveau document doit être du même type que l’ancien.</translation>
    </message>
    <message id="tessadocres-218">
        <source></source>
        <extracomment>TargetMissing. Box when a replacement is refused. Value: its path.</extracomment>
        <translation>Le document %s n’existe pas. Choisissez-en un qui existe.</translation>
    </message>
    <message id="tessadocres-219">
        <source></source>
        <extracomment>TargetExists. Box when a new name is refused.</extracomment>
        <translation>Un fichier de ce nom existe déjà. Choisissez un autre nom.</translation>
    </message>
    <message id="tessadocres-220">
        <source></source>
        <extracomment>TargetElsewhere. Box when a new name is refused.</extracomment>
        <translation>Entrez un nom sans dossier. Un document est renommé dans son propre dossier.</translation>
    </message>
    <message id="tessadocres-221">
        <source></source>
        <extracomment>Renamed. Result of a renaming.</extracomment>
        <translation>Renommé</translation>
    </message>
    <message id="tessadocres-222">
        <source></source>
        <extracomment>Replaced. Result of a replacement.</extracomment>
        <translation>Remplacé</translation>
    </message>
    <message id="tessadocres-223">
        <source></source>
        <extracomment>SearchingHolders. Status. Value: the folder.</extracomment>
        <translation>Recherche de références dans %s</translation>
    </message>
    <message id="tessadocres-225">
        <source></source>
        <extracomment>HolderIsReplacement. Box of a replacement. Values: document, new reference.</extracomment>
        <translation>Le document %s a le même nom de fichier que sa nouvelle référence %s. Sa coche a été retirée ; cliquez de nouveau sur « Appliquer » pour continuer sans lui.</translation>
    </message>
    <message id="tessadocres-227">
        <source></source>
        <extracomment>HolderHasNewName. Box of a renaming. Values: document, new name.</extracomment>
        <translation>Le document %s a le même nom que le nouveau, %s. Sa coche a été retirée ; cliquez de nouveau sur « Appliquer » pour continuer sans lui.</translation>
    </message>
    <message id="tessadocres-229">
        <source></source>
        <extracomment>NotRenamed. Box. Value: the new path.</extracomment>
        <translation>Le document ne peut pas être renommé en %s. Vérifiez que vous avez le droit d’écrire dans son dossier.</translation>
    </message>
    <message id="tessadocres-230">
        <source></source>
        <extracomment>NothingChanged. Status after a renaming that failed.</extracomment>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message id="tessadocres-231">
        <source></source>
        <extracomment>RowFailedTip. Tool tip of a row. Value: reason.</extracomment>
        <translation>Non mis à jour : %s</translation>
    </message>
    <message id="tessadocres-232">
        <source></source>
        <extracomment>RowFailed. Box. Value: the document.</extracomment>
        <translation>Le document %s ne peut pas être mis à jour. Il conserve son ancienne référence.</translation>
    </message>
    <message id="tessadocres-233">
        <source></source>
        <extracomment>ExportedUpdated. In an export: the row was updated.</extracomment>
        <translation>mis à jour</translation>
    </message>
    <message id="tessadocres-234">
        <source></source>
        <extracomment>RowUpdatedTip. Tool tip of a row.</extracomment>
        <translation>Mis à jour</translation>
    </message>
    <message id="tessadocres-235">
        <source></source>
        <extracomment>ExportedUnticked. In an export: the row is not ticked.</extracomment>
        <translation>Non</translation>
    </message>
    <message id="tessadocres-236">
        <source></source>
        <extracomment>OpeningFrame. Frame of the setup pane.</extracomment>
        <translation>Ouverture de documents</translation>
    </message>
    <message id="tessadocres-237">
        <source></source>
        <extracomment>UseSearchRules. Check box of the setup pane.</extracomment>
        <translation>Utiliser les rè&amp;gles de recherche à l’ouverture des documents</translation>
    </message>
    <message id="tessadocres-238">
        <source></source>
        <extracomment>DisplayFrame. Frame of the setup pane.</extracomment>
        <translation>Affichage</translation>
    </message>
    <message id="tessadocres-239">
        <source></source>
        <extracomment>ShowDescription. Check box of the setup pane.</extracomment>
        <translation>Afficher la &amp;description au-dessus des volets</translation>
    </message>
    <message id="tessadocres-240">
        <source></source>
        <extracomment>FolderListsFrame. Frame of the setup pane.</extracomment>
        <translation>Listes de dossiers nommées</translation>
    </message>
    <message id="tessadocres-241">
        <source></source>
        <extracomment>FolderListNames. Label of the list of names in the setup pane.</extracomment>
        <translation>Listes de dossiers</translation>
    </message>
    <message id="tessadocres-242">
        <source></source>
        <extracomment>FolderListName. Label of the field with the name of a folder list.</extracomment>
        <translation>Nom</translation>
    </message>
    <message id="tessadocres-243">
        <source></source>
        <extracomment>FolderListFolders. Label of the folders of the list being edited.</extracomment>
        <translation>Dossiers de la liste</translation>
    </message>
    <message id="tessadocres-244">
        <source></source>
        <extracomment>AddFolder. Button of the setup pane.</extracomment>
        <translation>Ajou&amp;ter un dossier...</translation>
    </message>
    <message id="tessadocres-245">
        <source></source>
        <extracomment>RemoveFolder. Button of the setup pane.</extracomment>
        <translation>R&amp;etirer le dossier</translation>
    </message>
    <message id="tessadocres-246">
        <source></source>
        <extracomment>DeleteFolderList. Button of the setup pane.</extracomment>
        <translation>&amp;Supprimer la liste</translation>
    </message>
    <message id="tessadocres-247">
        <source></source>
        <extracomment>MenuDelete. Menu entry of a configuration.</extracomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message id="tessadocres-248">
        <source></source>
        <extracomment>MoveUp. Button of the setup pane.</extracomment>
        <translation>&amp;Monter</translation>
    </message>
    <message id="tessadocres-249">
        <source></source>
        <extracomment>MoveDown. Button of the setup pane.</extracomment>
        <translation>Des&amp;cendre</translation>
    </message>
    <message id="tessadocres-250">
        <source></source>
        <extracomment>ClearFolders. Button of the setup pane.</extracomment>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message id="tessadocres-251">
        <source></source>
        <extracomment>HeaderTip. Tool tip of a list.</extracomment>
        <translation>Cliquez sur le titre pour alterner entre noms de fichier et chemins complets.</translation>
    </message>
    <message id="tessadocres-252">
        <source></source>
        <extracomment>FolderListsTip. Tool tip of the button that drops down the folder lists.</extracomment>
        <translation>Propose les listes de dossiers nommées des paramètres.</translation>
    </message>
    <message id="tessadocres-253">
        <source></source>
        <extracomment>LookInTip. Tool tip of a field with folders.</extracomment>
        <translation>Dossiers, séparés par « ; ». Une espace devant une entrée désigne une liste de dossiers nommée.</translation>
    </message>
    <message id="tessadocres-254">
        <source></source>
        <extracomment>DocumentToFindTip. Tool tip of the field with the document whose uses are looked for.</extracomment>
        <translation>Nom du document, avec ou sans dossier et extension.</translation>
    </message>
    <message id="tessadocres-255">
        <source></source>
        <extracomment>DropTip. Tool tip of a field.</extracomment>
        <translation>Déposez un document ou un dossier ici.</translation>
    </message>
    <message id="tessadocres-256">
        <source></source>
        <extracomment>OptionNotSaved. Box of the setup pane.</extracomment>
        <translation>L’option ne peut pas être enregistrée. Vérifiez que vous avez le droit d’écrire vos paramètres.</translation>
    </message>
    <message id="tessadocres-257">
        <source></source>
        <extracomment>FolderListWhat. What a folder is chosen for; goes into the title of the folder dialog.</extracomment>
        <translation>liste de dossiers</translation>
    </message>
    <message id="tessadocres-258">
        <source></source>
        <extracomment>FolderListNotDeleted. Box. Value: its name.</extracomment>
        <translation>La liste de dossiers %s ne peut pas être supprimée.</translation>
    </message>
    <message id="tessadocres-259">
        <source></source>
        <extracomment>FolderListNameWithBlank. Box of the setup pane.</extracomment>
        <translation>Le nom d’une liste de dossiers ne doit pas contenir d’espace.</translation>
    </message>
    <message id="tessadocres-260">
        <source></source>
        <extracomment>FolderListSaved. Status. Value: its name.</extracomment>
        <translation>La liste de dossiers %s a été enregistrée.</translation>
    </message>
    <message id="tessadocres-261">
        <source></source>
        <extracomment>AddFolderList. Caption of the setup pane's apply button for a new folder list; for an existing one it reads "Change".</extracomment>
        <translation>Ajouter</translation>
    </message>
    <message id="tessadocres-262">
        <source></source>
        <extracomment>SearchFolderTitle. Title of the folder dialog of the search pane. Value: what the folder is for.</extracomment>
        <translation>Recherche de documents : %s</translation>
    </message>
    <message id="tessadocres-263">
        <source></source>
        <extracomment>RuleAndOption. Option of the search pane: the rule must hold as well.</extracomment>
        <translation>&amp;Et</translation>
    </message>
    <message id="tessadocres-264">
        <source></source>
        <extracomment>RuleOrOption. Option of the search pane: the rule may hold instead.</extracomment>
        <translation>O&amp;u</translation>
    </message>
    <message id="tessadocres-265">
        <source></source>
        <extracomment>RuleProperty. Title of the column of rules with the property.</extracomment>
        <translation>Propriété</translation>
    </message>
    <message id="tessadocres-266">
        <source></source>
        <extracomment>BrowseMore. Button that opens a file or folder dialog, beside another one with a different key.</extracomment>
        <translation>Par&amp;courir...</translation>
    </message>
    <message id="tessadocres-267">
        <source></source>
        <extracomment>RuleCondition. Title of the column of rules with the condition.</extracomment>
        <translation>Condition</translation>
    </message>
    <message id="tessadocres-268">
        <source></source>
        <extracomment>RuleValue. Title of the column of rules with the value.</extracomment>
        <translation>Valeur</translation>
    </message>
    <message id="tessadocres-269">
        <source></source>
        <extracomment>AddRule. Button of the search pane.</extracomment>
        <translation>A&amp;jouter la règle</translation>
    </message>
    <message id="tessadocres-270">
        <source></source>
        <extracomment>FindNow. Caption of a search button at first. Captions are state: it must differ from "Stop".</extracomment>
        <translation>Rechercher</translation>
    </message>
    <message id="tessadocres-271">
        <source></source>
        <extracomment>DeleteRule. Button of the search pane.</extracomment>
        <translation>&amp;Supprimer la règle</translation>
    </message>
    <message id="tessadocres-272">
        <source></source>
        <extracomment>NewSearch. Button of the search panes that empties all fields.</extracomment>
        <translation>&amp;Nouvelle recherche</translation>
    </message>
    <message id="tessadocres-273">
        <source></source>
        <extracomment>SaveSearch. Button of the search pane.</extracomment>
        <translation>Enregistrer la rec&amp;herche...</translation>
    </message>
    <message id="tessadocres-274">
        <source></source>
        <extracomment>LoadSearch. Button of the search pane.</extracomment>
        <translation>Char&amp;ger une recherche...</translation>
    </message>
    <message id="tessadocres-275">
        <source></source>
        <extracomment>WithSubfolders. Check box: search the folders below as well.</extracomment>
        <translation>Sous-&amp;dossiers</translation>
    </message>
    <message id="tessadocres-276">
        <source></source>
        <extracomment>Rules. Frame of the search pane around the rules.</extracomment>
        <translation>Règles</translation>
    </message>
    <message id="tessadocres-277">
        <source></source>
        <extracomment>Results. Heading of the documents found.</extracomment>
        <translation>Résultats</translation>
    </message>
    <message id="tessadocres-278">
        <source></source>
        <extracomment>RuleConnective. Title of the column of rules with the connective.</extracomment>
        <translation>Liaison</translation>
    </message>
    <message id="tessadocres-279">
        <source></source>
        <extracomment>RuleOr. Connective of a search rule; also written to saved searches. No double quotes.</extracomment>
        <translation>OU</translation>
    </message>
    <message id="tessadocres-280">
        <source></source>
        <extracomment>RuleValueField. Label of the field with a rule's value.</extracomment>
        <translation>Valeur</translation>
    </message>
    <message id="tessadocres-281">
        <source></source>
        <extracomment>RulePropertyField. Label of the field with a rule's property.</extracomment>
        <translation>Propriété</translation>
    </message>
    <message id="tessadocres-282">
        <source></source>
        <extracomment>RuleConditionField. Label of the field with a rule's condition.</extracomment>
        <translation>Condition</translation>
    </message>
    <message id="tessadocres-283">
        <source></source>
        <extracomment>SearchFolders. Label of the folders of a search.</extracomment>
        <translation>Dossiers</translation>
    </message>
    <message id="tessadocres-284">
        <source></source>
        <extracomment>CreatedColumn. Title of a column.</extracomment>
        <translation>Créé le</translation>
    </message>
    <message id="tessadocres-285">
        <source></source>
        <extracomment>ModifiedColumn. Title of a column.</extracomment>
        <translation>Modifié</translation>
    </message>
    <message id="tessadocres-286">
        <source></source>
        <extracomment>FolderColumn. Title of a column.</extracomment>
        <translation>Dossier</translation>
    </message>
    <message id="tessadocres-287">
        <source></source>
        <extracomment>SavedSearchFilter. Filter of the dialogs for saved searches, as pairs of label and patterns.</extracomment>
        <translation>Recherches enregistrées (*.tdbs)|*.tdbs|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-288">
        <source></source>
        <extracomment>SavedSearchExtension. Extension that a saved search gets when none is typed.</extracomment>
        <translation>tdbs</translation>
    </message>
    <message id="tessadocres-289">
        <source></source>
        <extracomment>SavedSearchError. Box.</extracomment>
        <translation>La recherche enregistrée ne peut pas être lue en totalité. Vérifiez qu’il s’agit d’une recherche enregistrée et que vous avez le droit de la lire.</translation>
    </message>
    <message id="tessadocres-290">
        <source></source>
        <extracomment>SavedSearchExists. Question with the buttons OK and Cancel.</extracomment>
        <translation>Une recherche enregistrée porte déjà ce nom. Voulez-vous la remplacer ?</translation>
    </message>
    <message id="tessadocres-291">
        <source></source>
        <extracomment>SearchSaved. Status.</extracomment>
        <translation>La recherche a été enregistrée.</translation>
    </message>
    <message id="tessadocres-292">
        <source></source>
        <extracomment>SearchLoaded. Status.</extracomment>
        <translation>La recherche a été chargée.</translation>
    </message>
    <message id="tessadocres-293">
        <source></source>
        <extracomment>DocumentsFound. Status at the end of a search. Value: their number.</extracomment>
        <translation>Documents trouvés : %s</translation>
    </message>
    <message id="tessadocres-294">
        <source></source>
        <extracomment>SearchStopped. Text of a progress label.</extracomment>
        <translation>La recherche a été arrêtée.</translation>
    </message>
    <message id="tessadocres-295">
        <source></source>
        <extracomment>SearchingFolder. Status. Value: the folder.</extracomment>
        <translation>Recherche dans %s</translation>
    </message>
    <message id="tessadocres-296">
        <source></source>
        <extracomment>IsExactly. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>est (exactement)</translation>
    </message>
    <message id="tessadocres-297">
        <source></source>
        <extracomment>IsNot. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>n’est pas</translation>
    </message>
    <message id="tessadocres-298">
        <source></source>
        <extracomment>Contains. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>contient</translation>
    </message>
    <message id="tessadocres-299">
        <source></source>
        <extracomment>NotEqual. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>pas =</translation>
    </message>
    <message id="tessadocres-300">
        <source></source>
        <extracomment>IsYes. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>est Oui</translation>
    </message>
    <message id="tessadocres-301">
        <source></source>
        <extracomment>IsNo. Condition of a search rule. The conditions must differ; no double quotes.</extracomment>
        <translation>est Non</translation>
    </message>
    <message id="tessadocres-302">
        <source></source>
        <extracomment>LastSavedBy. Label in the property pane and property of a search rule.</extracomment>
        <translation>Dernier enregistrement par</translation>
    </message>
    <message id="tessadocres-303">
        <source></source>
        <extracomment>PropertyLastSaved. Property of a search rule.</extracomment>
        <translation>Dernier enregistrement</translation>
    </message>
    <message id="tessadocres-304">
        <source></source>
        <extracomment>Created. Label in the property pane and property of a search rule.</extracomment>
        <translation>Créé le</translation>
    </message>
    <message id="tessadocres-305">
        <source></source>
        <extracomment>NumberNeeded. Box. Value: the condition.</extracomment>
        <translation>La condition « %s » demande un nombre. Entrez-en un.</translation>
    </message>
    <message id="tessadocres-306">
        <source></source>
        <extracomment>Loading. Text of a progress label.</extracomment>
        <translation>Chargement...</translation>
    </message>
    <message id="tessadocres-307">
        <source></source>
        <extracomment>NoPreview. Shown in place of the picture.</extracomment>
        <translation>Ce document ne contient pas d’aperçu.</translation>
    </message>
    <message id="tessadocres-308">
        <source></source>
        <extracomment>ChooseFunction. Shown where there is no pane.</extracomment>
        <translation>Choisissez une fonction dans la barre d’icônes ou dans les menus.</translation>
    </message>
    <message id="tessadocres-309">
        <source></source>
        <extracomment>OpenDocumentTitle. Title of the open dialog.</extracomment>
        <translation>Ouvrir un document</translation>
    </message>
    <message id="tessadocres-310">
        <source></source>
        <extracomment>NodeMissing. Status. Value: the document.</extracomment>
        <translation>Le document %s est manquant.</translation>
    </message>
    <message id="tessadocres-311">
        <source></source>
        <extracomment>DocumentNotFound. Status. Value: the document.</extracomment>
        <translation>Le document %s est introuvable ou ne peut pas être ouvert.</translation>
    </message>
    <message id="tessadocres-312">
        <source></source>
        <extracomment>CircularNode. Text of a tree node whose document stands above it already. Value: the text so far, which ends in a blank.</extracomment>
        <translation>%s(circulaire)</translation>
    </message>
    <message id="tessadocres-313">
        <source></source>
        <extracomment>CircularReference. Box. Value: the document.</extracomment>
        <translation>Le document %s se référence lui-même par ses références.</translation>
    </message>
    <message id="tessadocres-314">
        <source></source>
        <extracomment>WalkError. Box. Values: document, reason.</extracomment>
        <translation>Les références de %s ne peuvent pas être lues. %s</translation>
    </message>
    <message id="tessadocres-315">
        <source></source>
        <extracomment>Rename. Menu entry and heading of the pane.</extracomment>
        <translation>Renommer</translation>
    </message>
    <message id="tessadocres-316">
        <source></source>
        <extracomment>Copy. Menu entry and heading of the pane.</extracomment>
        <translation>Copier</translation>
    </message>
    <message id="tessadocres-317">
        <source></source>
        <extracomment>Replace. Menu entry and heading of the pane.</extracomment>
        <translation>Remplacer</translation>
    </message>
    <message id="tessadocres-318">
        <source></source>
        <extracomment>PreviewError. Box. Value: the document.</extracomment>
        <translation>L’aperçu de %s ne peut pas être affiché.</translation>
    </message>
    <message id="tessadocres-319">
        <source></source>
        <extracomment>FullScreenTip. Tool tip of the preview's check box.</extracomment>
        <translation>Affiche une seule image dans tout le volet au lieu d’une grille des documents consultés.</translation>
    </message>
    <message id="tessadocres-320">
        <source></source>
        <extracomment>ClearPreviews. Menu entry of the preview.</extracomment>
        <translation>E&amp;ffacer les images</translation>
    </message>
    <message id="tessadocres-321">
        <source></source>
        <extracomment>OpenInCad. Menu entry.</extracomment>
        <translation>Ouvrir dans le logiciel de CAO</translation>
    </message>
    <message id="tessadocres-322">
        <source></source>
        <extracomment>CopyPath. Menu entry.</extracomment>
        <translation>Copier le chemin</translation>
    </message>
    <message id="tessadocres-323">
        <source></source>
        <extracomment>ShowInFolder. Menu entry.</extracomment>
        <translation>Afficher dans son dossier</translation>
    </message>
    <message id="tessadocres-324">
        <source></source>
        <extracomment>ExpandAll. Menu entry of the tree.</extracomment>
        <translation>Tout développer</translation>
    </message>
    <message id="tessadocres-326">
        <source></source>
        <extracomment>ReferenceName. Title of the column of references found when it shows file names.</extracomment>
        <translation>Référence</translation>
    </message>
    <message id="tessadocres-327">
        <source></source>
        <extracomment>ReferencePath. Title of the column of references found when it shows whole paths.</extracomment>
        <translation>Référence (chemin)</translation>
    </message>
    <message id="tessadocres-328">
        <source></source>
        <extracomment>FoldersNotFound. Box. Value: the folders, joined by ";".</extracomment>
        <translation>Ces dossiers sont introuvables et ont été retirés : %s</translation>
    </message>
    <message id="tessadocres-329">
        <source></source>
        <extracomment>MenuSearchScope. Button that opens the search scope form.</extracomment>
        <translation>Étendue de la rec&amp;herche...</translation>
    </message>
    <message id="tessadocres-331">
        <source></source>
        <extracomment>MenuReplace. Menu entry of the tree, title of the find and replace form, and label (a colon follows).</extracomment>
        <translation>Remplacer</translation>
    </message>
    <message id="tessadocres-332">
        <source></source>
        <extracomment>About. Menu entry and title of the about box.</extracomment>
        <translation>À propos de Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-333">
        <source></source>
        <extracomment>VendorPage. Button of the about box that opens the maker's page in the browser.</extracomment>
        <translation>Site &amp;web</translation>
    </message>
    <message id="tessadocres-334">
        <source></source>
        <extracomment>AboutDescription. Line of the about box.</extracomment>
        <translation>Le gestionnaire de documents de la famille de CAO Tessaforma</translation>
    </message>
    <message id="tessadocres-335">
        <source></source>
        <extracomment>Version. Line of the about box; a blank and the version number follow.</extracomment>
        <translation>Version</translation>
    </message>
    <message id="tessadocres-336">
        <source></source>
        <extracomment>Disclaimer. Line of the about box.</extracomment>
        <translation>Ce programme est fourni sans aucune garantie. Sa licence indique les conditions d’utilisation.</translation>
    </message>
    <message id="tessadocres-337">
        <source></source>
        <extracomment>AddProperty. Caption of the button that adds a property. Captions are state: it must differ from "Change".</extracomment>
        <translation>Ajouter</translation>
    </message>
    <message id="tessadocres-338">
        <source></source>
        <extracomment>RemoveProperty. Button of the property pane.</extracomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message id="tessadocres-339">
        <source></source>
        <extracomment>ValueYes. Value of a yes or no property; compared when it is written: it must differ from "No".</extracomment>
        <translation>Oui</translation>
    </message>
    <message id="tessadocres-340">
        <source></source>
        <extracomment>ValueNo. Value of a yes or no property; compared when it is written: it must differ from "Yes".</extracomment>
        <translation>Non</translation>
    </message>
    <message id="tessadocres-341">
        <source></source>
        <extracomment>NotLocked. Shown where the user of a lock stands.</extracomment>
        <translation>Non verrouillé</translation>
    </message>
    <message id="tessadocres-342">
        <source></source>
        <extracomment>ToolbarRename. Toolbar button with the menu of rename, replace and copy.</extracomment>
        <translation>&amp;Renommer</translation>
    </message>
    <message id="tessadocres-343">
        <source></source>
        <extracomment>ToolbarView. Toolbar button with the menu of the panes.</extracomment>
        <translation>&amp;Affichage</translation>
    </message>
    <message id="tessadocres-344">
        <source></source>
        <extracomment>ToolbarOpen. Toolbar button with the menu of the ways to open a document.</extracomment>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message id="tessadocres-345">
        <source></source>
        <extracomment>IconBarHeading. Heading above the icon bar.</extracomment>
        <translation>Fonctions</translation>
    </message>
    <message id="tessadocres-346">
        <source></source>
        <extracomment>LockedBy. Label in the property pane; the lock's user follows.</extracomment>
        <translation>Verrouillé par</translation>
    </message>
    <message id="tessadocres-347">
        <source></source>
        <extracomment>FileName. Property of a search rule: the document's file name, compared with the property field. No double quotes.</extracomment>
        <translation>Nom de fichier</translation>
    </message>
    <message id="tessadocres-348">
        <source></source>
        <extracomment>UseFullScreen. Check box of the preview: one picture in the whole pane.</extracomment>
        <translation>Afficher une seule &amp;image</translation>
    </message>
    <message id="tessadocres-349">
        <source></source>
        <extracomment>OpenedDocuments. Heading of a list.</extracomment>
        <translation>Documents ouverts</translation>
    </message>
    <message id="tessadocres-350">
        <source></source>
        <extracomment>ExportedDone. In an export: the row was copied or updated.</extracomment>
        <translation>fait</translation>
    </message>
    <message id="tessadocres-351">
        <source></source>
        <extracomment>YesToAll. Button of the question whether to create a folder.</extracomment>
        <translation>Oui pour to&amp;us</translation>
    </message>
    <message id="tessadocres-352">
        <source></source>
        <extracomment>CreateFolderQuestion. Question with the buttons Yes, Yes to all and No. Value: the folder.</extracomment>
        <translation>Le dossier %s n’existe pas. Voulez-vous le créer ?</translation>
    </message>
    <message id="tessadocres-353">
        <source></source>
        <extracomment>ParentNotOpenedTip. Tool tip of a parent document. Value: reason.</extracomment>
        <translation>Ne peut pas être ouvert : %s</translation>
    </message>
    <message id="tessadocres-354">
        <source></source>
        <extracomment>CopyRows. Status. Values: number of rows, number of missing documents.</extracomment>
        <translation>Références : %s, manquantes : %s</translation>
    </message>
    <message id="tessadocres-355">
        <source></source>
        <extracomment>CheckingTargets. Text of a progress label.</extracomment>
        <translation>Vérification des cibles...</translation>
    </message>
    <message id="tessadocres-356">
        <source></source>
        <extracomment>CheckingTarget. Status. Value: the new name or replacement.</extracomment>
        <translation>Vérification de %s</translation>
    </message>
    <message id="tessadocres-357">
        <source></source>
        <extracomment>RenameDone. Status. Values: number of documents updated, number failed.</extracomment>
        <translation>Mis à jour : %s, en échec : %s</translation>
    </message>
    <message id="tessadocres-358">
        <source></source>
        <extracomment>UpdatingDocument. Status. Value: the document.</extracomment>
        <translation>Mise à jour de %s</translation>
    </message>
    <message id="tessadocres-359">
        <source></source>
        <extracomment>ReplaceWithLabel. Label in the rename pane; a colon follows.</extracomment>
        <translation>Remplacer par</translation>
    </message>
    <message id="tessadocres-360">
        <source></source>
        <extracomment>SearchFirstQuestion. Question with the buttons Yes, No and Cancel.</extracomment>
        <translation>Les documents qui utilisent celui-ci n’ont pas été recherchés, ils garderaient donc leurs anciennes références. Les rechercher d’abord ?</translation>
    </message>
    <message id="tessadocres-361">
        <source></source>
        <extracomment>TickStays. Box when a row is ticked or cleared that must stay as it is.</extracomment>
        <translation>La coche de cette ligne ne peut pas être changée : son document est en lecture seule, ou c’est le document parent, toujours mis à jour.</translation>
    </message>
    <message id="tessadocres-362">
        <source></source>
        <extracomment>PreviewOf. Status. Value: the document.</extracomment>
        <translation>Aperçu de %s</translation>
    </message>
    <message id="tessadocres-363">
        <source></source>
        <extracomment>NoDocument. Status.</extracomment>
        <translation>Aucun document n’est ouvert.</translation>
    </message>
    <message id="tessadocres-364">
        <source></source>
        <extracomment>SearchError. Box. Value: reason.</extracomment>
        <translation>La recherche s’est terminée prématurément. %s</translation>
    </message>
    <message id="tessadocres-365">
        <source></source>
        <extracomment>TargetFolderReadOnly. Box. Value: the folder.</extracomment>
        <translation>Le dossier %s est en lecture seule. Choisissez-en un autre.</translation>
    </message>
    <message id="tessadocres-366">
        <source></source>
        <extracomment>CopyingTo. Status. Value: the target.</extracomment>
        <translation>Copie vers %s</translation>
    </message>
    <message id="tessadocres-367">
        <source></source>
        <extracomment>ConfigurationLoadError. Box. Value: reason.</extracomment>
        <translation>Les configurations ne peuvent pas être lues. %s</translation>
    </message>
    <message id="tessadocres-368">
        <source></source>
        <extracomment>HyperlinkSaveError. Box. Value: reason.</extracomment>
        <translation>Les liens hypertexte ne peuvent pas être enregistrés. %s</translation>
    </message>
    <message id="tessadocres-369">
        <source></source>
        <extracomment>HyperlinkCount. Status. Value: their number.</extracomment>
        <translation>Liens hypertexte : %s</translation>
    </message>
    <message id="tessadocres-370">
        <source></source>
        <extracomment>OverwriteTitle. Title of a question.</extracomment>
        <translation>Remplacer le fichier</translation>
    </message>
    <message id="tessadocres-371">
        <source></source>
        <extracomment>Kilobytes. Size of a file. Value: units of 1000 bytes.</extracomment>
        <translation>%s ko</translation>
    </message>
    <message id="tessadocres-372">
        <source></source>
        <extracomment>ExportError. Box. Value: reason.</extracomment>
        <translation>La feuille de calcul ne peut pas être écrite. %s</translation>
    </message>
    <message id="tessadocres-373">
        <source></source>
        <extracomment>AccessInUse. Box. Value: the document.</extracomment>
        <translation>Le document %s est utilisé par un autre programme. Fermez-le dans ce programme et réessayez.</translation>
    </message>
    <message id="tessadocres-374">
        <source></source>
        <extracomment>AccessReadOnly. Box. Value: the document.</extracomment>
        <translation>Le document %s est en lecture seule. Retirez sa protection en écriture et réessayez.</translation>
    </message>
    <message id="tessadocres-375">
        <source></source>
        <extracomment>AccessRefused. Box. Value: the document.</extracomment>
        <translation>Le document %s ne peut pas être écrit. Vérifiez qu’il existe et que vous avez le droit de le modifier.</translation>
    </message>
    <message id="tessadocres-376">
        <source></source>
        <extracomment>MenuUndelete. Menu entry of a configuration that is marked as deleted.</extracomment>
        <translation>&amp;Annuler la suppression</translation>
    </message>
    <message id="tessadocres-377">
        <source></source>
        <extracomment>FoldersLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>Dossiers parcourus : %s</translation>
    </message>
    <message id="tessadocres-378">
        <source></source>
        <extracomment>DocumentsLookedAt. Text of a progress label. Value: their number.</extracomment>
        <translation>Documents parcourus : %s</translation>
    </message>
    <message id="tessadocres-379">
        <source></source>
        <extracomment>FilesNotRead. Text of a progress label. Value: their number.</extracomment>
        <translation>Fichiers illisibles : %s</translation>
    </message>
    <message id="tessadocres-380">
        <source></source>
        <extracomment>LockedByOther. Box. Values: document, user.</extracomment>
        <translation>Le document %s est verrouillé par %s. Seul cet utilisateur peut le déverrouiller.</translation>
    </message>
    <message id="tessadocres-381">
        <source></source>
        <extracomment>Lock. Menu entry.</extracomment>
        <translation>Verrouiller</translation>
    </message>
    <message id="tessadocres-382">
        <source></source>
        <extracomment>Unlock. Menu entry.</extracomment>
        <translation>Déverrouiller</translation>
    </message>
    <message id="tessadocres-383">
        <source></source>
        <extracomment>OpenWebFolder. Menu entry and title of the dialog.</extracomment>
        <translation>Ouvrir depuis un dossier web</translation>
    </message>
    <message id="tessadocres-394">
        <source></source>
        <extracomment>UseViewer. Check box of the setup pane.</extracomment>
        <translation>Afficher les modèles dans la visionneuse &amp;3D</translation>
    </message>
    <message id="tessadocres-400">
        <source></source>
        <extracomment>LoggingFrame. Frame of the setup pane.</extracomment>
        <translation>Journal de performances</translation>
    </message>
    <message id="tessadocres-401">
        <source></source>
        <extracomment>UseLogging. Check box of the setup pane.</extracomment>
        <translation>Envoyer le &amp;journal de performances</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="tessadocres-1">
        <source></source>
        <extracomment>Find replace</extracomment>
        <translation>Find and re&amp;place...</translation>
    </message>
    <message id="tessadocres-2">
        <source></source>
        <extracomment>File name</extracomment>
        <translation>File name</translation>
    </message>
    <message id="tessadocres-3">
        <source></source>
        <extracomment>Copy children</extracomment>
        <translation>Copy &amp;references too</translation>
    </message>
    <message id="tessadocres-4">
        <source></source>
        <extracomment>Clear all</extracomment>
        <translation>C&amp;lear all</translation>
    </message>
    <message id="tessadocres-5">
        <source></source>
        <extracomment>Copy word</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="tessadocres-6">
        <source></source>
        <extracomment>Path column</extracomment>
        <translation>Path</translation>
    </message>
    <message id="tessadocres-7">
        <source></source>
        <extracomment>Refresh</extracomment>
        <translation>&amp;Refresh</translation>
    </message>
    <message id="tessadocres-8">
        <source></source>
        <extracomment>Kind column</extracomment>
        <translation>Kind</translation>
    </message>
    <message id="tessadocres-9">
        <source></source>
        <extracomment>Parent documents</extracomment>
        <translation>Parent documents</translation>
    </message>
    <message id="tessadocres-10">
        <source></source>
        <extracomment>Browse</extracomment>
        <translation>&amp;Browse...</translation>
    </message>
    <message id="tessadocres-11">
        <source></source>
        <extracomment>Add suffix</extracomment>
        <translation>Add a &amp;suffix</translation>
    </message>
    <message id="tessadocres-12">
        <source></source>
        <extracomment>Add prefix</extracomment>
        <translation>Add a pre&amp;fix</translation>
    </message>
    <message id="tessadocres-13">
        <source></source>
        <extracomment>Target folder</extracomment>
        <translation>Target folder</translation>
    </message>
    <message id="tessadocres-14">
        <source></source>
        <extracomment>New name</extracomment>
        <translation>New name</translation>
    </message>
    <message id="tessadocres-15">
        <source></source>
        <extracomment>Apply</extracomment>
        <translation>&amp;Apply</translation>
    </message>
    <message id="tessadocres-16">
        <source></source>
        <extracomment>Reset</extracomment>
        <translation>&amp;Reset</translation>
    </message>
    <message id="tessadocres-17">
        <source></source>
        <extracomment>Find again</extracomment>
        <translation>&amp;Find now</translation>
    </message>
    <message id="tessadocres-18">
        <source></source>
        <extracomment>Look in</extracomment>
        <translation>Look in</translation>
    </message>
    <message id="tessadocres-19">
        <source></source>
        <extracomment>Update word</extracomment>
        <translation>Update</translation>
    </message>
    <message id="tessadocres-20">
        <source></source>
        <extracomment>Used by</extracomment>
        <translation>Used by</translation>
    </message>
    <message id="tessadocres-21">
        <source></source>
        <extracomment>Relation column</extracomment>
        <translation>Relation</translation>
    </message>
    <message id="tessadocres-22">
        <source></source>
        <extracomment>Target column</extracomment>
        <translation>Target</translation>
    </message>
    <message id="tessadocres-23">
        <source></source>
        <extracomment>Position column</extracomment>
        <translation>Position</translation>
    </message>
    <message id="tessadocres-25">
        <source></source>
        <extracomment>Menu open</extracomment>
        <translation>&amp;Open</translation>
    </message>
    <message id="tessadocres-26">
        <source></source>
        <extracomment>Menu export</extracomment>
        <translation>&amp;Export list...</translation>
    </message>
    <message id="tessadocres-27">
        <source></source>
        <extracomment>List first long</extracomment>
        <translation>Path</translation>
    </message>
    <message id="tessadocres-28">
        <source></source>
        <extracomment>List first short</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-29">
        <source></source>
        <extracomment>List second long</extracomment>
        <translation>Document path</translation>
    </message>
    <message id="tessadocres-30">
        <source></source>
        <extracomment>List target long</extracomment>
        <translation>Target path</translation>
    </message>
    <message id="tessadocres-31">
        <source></source>
        <extracomment>Holder short</extracomment>
        <translation>Document</translation>
    </message>
    <message id="tessadocres-32">
        <source></source>
        <extracomment>Target tip</extracomment>
        <translation>Click to change the target.</translation>
    </message>
    <message id="tessadocres-33">
        <source></source>
        <extracomment>Default prefix</extracomment>
        <translation>Copy of </translation>
    </message>
    <message id="tessadocres-34">
        <source></source>
        <extracomment>Target folder what</extracomment>
        <translation>the target folder</translation>
    </message>
    <message id="tessadocres-35">
        <source></source>
        <extracomment>Part filter</extracomment>
        <translation>Parts (*.tfmprt, *.prt)|*.tfmprt;*.prt</translation>
    </message>
    <message id="tessadocres-36">
        <source></source>
        <extracomment>Assembly filter</extracomment>
        <translation>Assemblies (*.tfmasm, *.asm)|*.tfmasm;*.asm</translation>
    </message>
    <message id="tessadocres-37">
        <source></source>
        <extracomment>Choose target file</extracomment>
        <translation>Choose the target file</translation>
    </message>
    <message id="tessadocres-38">
        <source></source>
        <extracomment>Parent read only</extracomment>
        <translation>This document is read-only and can't be changed. Take off its write protection first.</translation>
    </message>
    <message id="tessadocres-39">
        <source></source>
        <extracomment>Drawing filter</extracomment>
        <translation>Drawings (*.tfmdrw, *.drw)|*.tfmdrw;*.drw</translation>
    </message>
    <message id="tessadocres-40">
        <source></source>
        <extracomment>Close</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="tessadocres-41">
        <source></source>
        <extracomment>Export done</extracomment>
        <translation>%s rows were exported.</translation>
    </message>
    <message id="tessadocres-42">
        <source></source>
        <extracomment>Export failed</extracomment>
        <translation>The list could not be exported.</translation>
    </message>
    <message id="tessadocres-43">
        <source></source>
        <extracomment>Nothing to export</extracomment>
        <translation>The list is empty. There is nothing to export.</translation>
    </message>
    <message id="tessadocres-44">
        <source></source>
        <extracomment>Status word</extracomment>
        <translation>Status</translation>
    </message>
    <message id="tessadocres-45">
        <source></source>
        <extracomment>Yes mark</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="tessadocres-46">
        <source></source>
        <extracomment>No mark</extracomment>
        <translation>No</translation>
    </message>
    <message id="tessadocres-47">
        <source></source>
        <extracomment>Ok</extracomment>
        <translation>OK</translation>
    </message>
    <message id="tessadocres-48">
        <source></source>
        <extracomment>Document missing</extracomment>
        <translation>This document is missing and can't be opened.</translation>
    </message>
    <message id="tessadocres-49">
        <source></source>
        <extracomment>Select all</extracomment>
        <translation>Select a&amp;ll</translation>
    </message>
    <message id="tessadocres-51">
        <source></source>
        <extracomment>Folder not made</extracomment>
        <translation>The folder %s could not be made.</translation>
    </message>
    <message id="tessadocres-52">
        <source></source>
        <extracomment>Rename load error</extracomment>
        <translation>The document %s can't be loaded. %s</translation>
    </message>
    <message id="tessadocres-53">
        <source></source>
        <extracomment>Stop</extracomment>
        <translation>&amp;Stop</translation>
    </message>
    <message id="tessadocres-55">
        <source></source>
        <extracomment>Not found</extracomment>
        <translation>Not found</translation>
    </message>
    <message id="tessadocres-57">
        <source></source>
        <extracomment>No target file</extracomment>
        <translation>Enter the name of the target file first.</translation>
    </message>
    <message id="tessadocres-58">
        <source></source>
        <extracomment>Target of other kind</extracomment>
        <translation>The target must be a document of the same kind as the source.</translation>
    </message>
    <message id="tessadocres-59">
        <source></source>
        <extracomment>Source missing</extracomment>
        <translation>The document %s is missing. Choose another one in its place, leave it out, or cancel the run.</translation>
    </message>
    <message id="tessadocres-60">
        <source></source>
        <extracomment>Working</extracomment>
        <translation>Working...</translation>
    </message>
    <message id="tessadocres-61">
        <source></source>
        <extracomment>Ready</extracomment>
        <translation>Ready</translation>
    </message>
    <message id="tessadocres-62">
        <source></source>
        <extracomment>Copy cancelled</extracomment>
        <translation>Nothing was copied.</translation>
    </message>
    <message id="tessadocres-63">
        <source></source>
        <extracomment>Copy failed tip</extracomment>
        <translation>This file could not be copied.</translation>
    </message>
    <message id="tessadocres-64">
        <source></source>
        <extracomment>Not overwritten tip</extracomment>
        <translation>Not copied: the existing file was kept.</translation>
    </message>
    <message id="tessadocres-65">
        <source></source>
        <extracomment>Source missing tip</extracomment>
        <translation>Not copied: the document is missing.</translation>
    </message>
    <message id="tessadocres-66">
        <source></source>
        <extracomment>Copy done</extracomment>
        <translation>%s files were copied, %s failed.</translation>
    </message>
    <message id="tessadocres-68">
        <source></source>
        <extracomment>Copy not opened</extracomment>
        <translation>The copied document %s can't be opened to update its references. Go on with the others?</translation>
    </message>
    <message id="tessadocres-69">
        <source></source>
        <extracomment>Failure tip</extracomment>
        <translation>Failed: %s</translation>
    </message>
    <message id="tessadocres-70">
        <source></source>
        <extracomment>Save failed</extracomment>
        <translation>The document %s can't be saved. %s Go on with the others?</translation>
    </message>
    <message id="tessadocres-72">
        <source></source>
        <extracomment>Updating references</extracomment>
        <translation>Updating the references in %s...</translation>
    </message>
    <message id="tessadocres-73">
        <source></source>
        <extracomment>References not updated</extracomment>
        <translation>The references in %s can't be updated. %s Go on with the others?</translation>
    </message>
    <message id="tessadocres-74">
        <source></source>
        <extracomment>Overwrite question</extracomment>
        <translation>The file %s is there already. Overwrite it?</translation>
    </message>
    <message id="tessadocres-75">
        <source></source>
        <extracomment>Pause</extracomment>
        <translation>Pause</translation>
    </message>
    <message id="tessadocres-76">
        <source></source>
        <extracomment>Rows found</extracomment>
        <translation>%s uses found.</translation>
    </message>
    <message id="tessadocres-77">
        <source></source>
        <extracomment>Parent tip</extracomment>
        <translation>Tick the row to update the document or copy it.</translation>
    </message>
    <message id="tessadocres-78">
        <source></source>
        <extracomment>Read only mark</extracomment>
        <translation> (read-only) </translation>
    </message>
    <message id="tessadocres-79">
        <source></source>
        <extracomment>Help</extracomment>
        <translation>Help</translation>
    </message>
    <message id="tessadocres-80">
        <source></source>
        <extracomment>Search scope</extracomment>
        <translation>Search Scope</translation>
    </message>
    <message id="tessadocres-81">
        <source></source>
        <extracomment>Name column</extracomment>
        <translation>Name</translation>
    </message>
    <message id="tessadocres-82">
        <source></source>
        <extracomment>Value column</extracomment>
        <translation>Value</translation>
    </message>
    <message id="tessadocres-83">
        <source></source>
        <extracomment>Find in</extracomment>
        <translation>Find in</translation>
    </message>
    <message id="tessadocres-84">
        <source></source>
        <extracomment>Find mirrored</extracomment>
        <translation>&amp;Mirrored parts</translation>
    </message>
    <message id="tessadocres-85">
        <source></source>
        <extracomment>Folder lists</extracomment>
        <translation>Folder &amp;lists</translation>
    </message>
    <message id="tessadocres-86">
        <source></source>
        <extracomment>Recent folders</extracomment>
        <translation>Recent folders</translation>
    </message>
    <message id="tessadocres-87">
        <source></source>
        <extracomment>Find references</extracomment>
        <translation>&amp;References</translation>
    </message>
    <message id="tessadocres-88">
        <source></source>
        <extracomment>Find in context</extracomment>
        <translation>In-conte&amp;xt references</translation>
    </message>
    <message id="tessadocres-89">
        <source></source>
        <extracomment>Cancel</extracomment>
        <translation>&amp;Cancel</translation>
    </message>
    <message id="tessadocres-90">
        <source></source>
        <extracomment>Search folder what</extracomment>
        <translation>a folder to look in</translation>
    </message>
    <message id="tessadocres-91">
        <source></source>
        <extracomment>Choose folder</extracomment>
        <translation>Choose %s</translation>
    </message>
    <message id="tessadocres-92">
        <source></source>
        <extracomment>Changed to</extracomment>
        <translation> -&gt; </translation>
    </message>
    <message id="tessadocres-93">
        <source></source>
        <extracomment>Name empty</extracomment>
        <translation>A configuration needs a name.</translation>
    </message>
    <message id="tessadocres-94">
        <source></source>
        <extracomment>Name taken</extracomment>
        <translation>There is a configuration of that name already.</translation>
    </message>
    <message id="tessadocres-95">
        <source></source>
        <extracomment>Not deletable</extracomment>
        <translation>This configuration can't be deleted.</translation>
    </message>
    <message id="tessadocres-96">
        <source></source>
        <extracomment>Configurations not saved</extracomment>
        <translation>The configurations were not saved.</translation>
    </message>
    <message id="tessadocres-97">
        <source></source>
        <extracomment>Configurations saved</extracomment>
        <translation>The configurations were saved.</translation>
    </message>
    <message id="tessadocres-98">
        <source></source>
        <extracomment>Configuration save error</extracomment>
        <translation>The configurations can't be saved. %s</translation>
    </message>
    <message id="tessadocres-99">
        <source></source>
        <extracomment>Configurations of</extracomment>
        <translation>Configurations of %s</translation>
    </message>
    <message id="tessadocres-100">
        <source></source>
        <extracomment>Configuration count</extracomment>
        <translation>%s configurations</translation>
    </message>
    <message id="tessadocres-101">
        <source></source>
        <extracomment>Configurations not loaded</extracomment>
        <translation>The configurations of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-103">
        <source></source>
        <extracomment>Match case</extracomment>
        <translation>Match &amp;case</translation>
    </message>
    <message id="tessadocres-104">
        <source></source>
        <extracomment>Find next</extracomment>
        <translation>&amp;Find next</translation>
    </message>
    <message id="tessadocres-105">
        <source></source>
        <extracomment>Replace all</extracomment>
        <translation>Replace &amp;all</translation>
    </message>
    <message id="tessadocres-106">
        <source></source>
        <extracomment>Replace with</extracomment>
        <translation>Replace &amp;with:</translation>
    </message>
    <message id="tessadocres-107">
        <source></source>
        <extracomment>Find what</extracomment>
        <translation>Fi&amp;nd:</translation>
    </message>
    <message id="tessadocres-108">
        <source></source>
        <extracomment>Text not found</extracomment>
        <translation>"%s" was not found.</translation>
    </message>
    <message id="tessadocres-109">
        <source></source>
        <extracomment>Find backwards</extracomment>
        <translation>Search &amp;up</translation>
    </message>
    <message id="tessadocres-110">
        <source></source>
        <extracomment>Hyperlinks saved</extracomment>
        <translation>The hyperlinks were saved.</translation>
    </message>
    <message id="tessadocres-111">
        <source></source>
        <extracomment>Hyperlinks not saved</extracomment>
        <translation>The hyperlinks were not saved.</translation>
    </message>
    <message id="tessadocres-113">
        <source></source>
        <extracomment>Menu open file</extracomment>
        <translation>&amp;Open document...</translation>
    </message>
    <message id="tessadocres-114">
        <source></source>
        <extracomment>Hyperlinks not loaded</extracomment>
        <translation>The hyperlinks of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-115">
        <source></source>
        <extracomment>Hyperlink load error</extracomment>
        <translation>The hyperlinks can't be read. %s</translation>
    </message>
    <message id="tessadocres-116">
        <source></source>
        <extracomment>Size column</extracomment>
        <translation>Size</translation>
    </message>
    <message id="tessadocres-117">
        <source></source>
        <extracomment>Type column</extracomment>
        <translation>Type</translation>
    </message>
    <message id="tessadocres-118">
        <source></source>
        <extracomment>Last saved</extracomment>
        <translation>Last saved</translation>
    </message>
    <message id="tessadocres-119">
        <source></source>
        <extracomment>Attributes column</extracomment>
        <translation>Attributes</translation>
    </message>
    <message id="tessadocres-120">
        <source></source>
        <extracomment>Reference list error</extracomment>
        <translation>The references can't be listed. %s</translation>
    </message>
    <message id="tessadocres-121">
        <source></source>
        <extracomment>Document not readable</extracomment>
        <translation>The document %s can't be read.</translation>
    </message>
    <message id="tessadocres-122">
        <source></source>
        <extracomment>App title</extracomment>
        <translation>Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-123">
        <source></source>
        <extracomment>Skip all</extracomment>
        <translation>Skip &amp;all</translation>
    </message>
    <message id="tessadocres-124">
        <source></source>
        <extracomment>Skip one</extracomment>
        <translation>&amp;Skip</translation>
    </message>
    <message id="tessadocres-125">
        <source></source>
        <extracomment>Browse button</extracomment>
        <translation>&amp;Browse...</translation>
    </message>
    <message id="tessadocres-126">
        <source></source>
        <extracomment>Preview</extracomment>
        <translation>Preview</translation>
    </message>
    <message id="tessadocres-127">
        <source></source>
        <extracomment>Properties</extracomment>
        <translation>Properties</translation>
    </message>
    <message id="tessadocres-128">
        <source></source>
        <extracomment>References</extracomment>
        <translation>References</translation>
    </message>
    <message id="tessadocres-129">
        <source></source>
        <extracomment>Where used</extracomment>
        <translation>Where used</translation>
    </message>
    <message id="tessadocres-130">
        <source></source>
        <extracomment>Search</extracomment>
        <translation>Search</translation>
    </message>
    <message id="tessadocres-131">
        <source></source>
        <extracomment>Configurations</extracomment>
        <translation>Configurations</translation>
    </message>
    <message id="tessadocres-132">
        <source></source>
        <extracomment>Hyperlinks</extracomment>
        <translation>Hyperlinks</translation>
    </message>
    <message id="tessadocres-133">
        <source></source>
        <extracomment>Setup</extracomment>
        <translation>Setup</translation>
    </message>
    <message id="tessadocres-134">
        <source></source>
        <extracomment>Options</extracomment>
        <translation>Options</translation>
    </message>
    <message id="tessadocres-135">
        <source></source>
        <extracomment>Preview help</extracomment>
        <translation>Shows the picture that is stored in the document. Click documents in the tree to compare them.</translation>
    </message>
    <message id="tessadocres-136">
        <source></source>
        <extracomment>Properties help</extracomment>
        <translation>Shows and changes what the document stores about itself: summary, custom properties and the properties of each configuration.</translation>
    </message>
    <message id="tessadocres-137">
        <source></source>
        <extracomment>References help</extracomment>
        <translation>Lists the documents that this document refers to directly.</translation>
    </message>
    <message id="tessadocres-138">
        <source></source>
        <extracomment>Configurations help</extracomment>
        <translation>Renames and deletes the configurations of the document. Nothing is written before you save.</translation>
    </message>
    <message id="tessadocres-139">
        <source></source>
        <extracomment>Where used help</extracomment>
        <translation>Finds the documents that use this document in the folders that you name.</translation>
    </message>
    <message id="tessadocres-140">
        <source></source>
        <extracomment>Search help</extracomment>
        <translation>Finds documents by rules on their properties in the folders that you name.</translation>
    </message>
    <message id="tessadocres-141">
        <source></source>
        <extracomment>Rename help</extracomment>
        <translation>Renames the document or replaces it by another, and brings every document that uses it up to date.</translation>
    </message>
    <message id="tessadocres-142">
        <source></source>
        <extracomment>Copy help</extracomment>
        <translation>Copies the document with its references, and brings the copies and chosen parent documents up to date.</translation>
    </message>
    <message id="tessadocres-143">
        <source></source>
        <extracomment>Hyperlinks help</extracomment>
        <translation>Changes the hyperlinks that the document stores. Double-click one to open it.</translation>
    </message>
    <message id="tessadocres-144">
        <source></source>
        <extracomment>Setup help</extracomment>
        <translation>Sets the options and keeps the named folder lists that the search panes offer.</translation>
    </message>
    <message id="tessadocres-145">
        <source></source>
        <extracomment>Open filter</extracomment>
        <translation>All documents (*.tfmasm, *.tfmprt, *.tfmdrw)|*.tfmasm;*.tfmprt;*.tfmdrw;*.asm;*.prt|Assemblies (*.tfmasm, *.asm)|*.tfmasm;*.asm|Parts (*.tfmprt, *.prt)|*.tfmprt;*.prt|Drawings (*.tfmdrw)|*.tfmdrw|All files (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-146">
        <source></source>
        <extracomment>Old format</extracomment>
        <translation>This document is of an older file format. Open it in the CAD program and save it to edit it here.</translation>
    </message>
    <message id="tessadocres-147">
        <source></source>
        <extracomment>Relation default</extracomment>
        <translation>Reference</translation>
    </message>
    <message id="tessadocres-148">
        <source></source>
        <extracomment>Relation assembly</extracomment>
        <translation>In-context</translation>
    </message>
    <message id="tessadocres-149">
        <source></source>
        <extracomment>Relation part</extracomment>
        <translation>Mirrored</translation>
    </message>
    <message id="tessadocres-150">
        <source></source>
        <extracomment>Details</extracomment>
        <translation>Details</translation>
    </message>
    <message id="tessadocres-151">
        <source></source>
        <extracomment>Document</extracomment>
        <translation>Document</translation>
    </message>
    <message id="tessadocres-152">
        <source></source>
        <extracomment>Summary tab</extracomment>
        <translation>Summary</translation>
    </message>
    <message id="tessadocres-153">
        <source></source>
        <extracomment>Custom tab</extracomment>
        <translation>Custom</translation>
    </message>
    <message id="tessadocres-154">
        <source></source>
        <extracomment>Configuration tab</extracomment>
        <translation>Configuration-specific</translation>
    </message>
    <message id="tessadocres-155">
        <source></source>
        <extracomment>Property name</extracomment>
        <translation>Property name</translation>
    </message>
    <message id="tessadocres-156">
        <source></source>
        <extracomment>Property value</extracomment>
        <translation>Property value</translation>
    </message>
    <message id="tessadocres-157">
        <source></source>
        <extracomment>Comments</extracomment>
        <translation>Comments</translation>
    </message>
    <message id="tessadocres-158">
        <source></source>
        <extracomment>Keywords</extracomment>
        <translation>Keywords</translation>
    </message>
    <message id="tessadocres-159">
        <source></source>
        <extracomment>Author</extracomment>
        <translation>Author</translation>
    </message>
    <message id="tessadocres-160">
        <source></source>
        <extracomment>Subject</extracomment>
        <translation>Subject</translation>
    </message>
    <message id="tessadocres-161">
        <source></source>
        <extracomment>Title</extracomment>
        <translation>Title</translation>
    </message>
    <message id="tessadocres-162">
        <source></source>
        <extracomment>Add</extracomment>
        <translation>&amp;Add new</translation>
    </message>
    <message id="tessadocres-163">
        <source></source>
        <extracomment>Change</extracomment>
        <translation>&amp;Change</translation>
    </message>
    <message id="tessadocres-164">
        <source></source>
        <extracomment>Type text</extracomment>
        <translation>Text</translation>
    </message>
    <message id="tessadocres-165">
        <source></source>
        <extracomment>Type date</extracomment>
        <translation>Date</translation>
    </message>
    <message id="tessadocres-166">
        <source></source>
        <extracomment>Type number</extracomment>
        <translation>Number</translation>
    </message>
    <message id="tessadocres-167">
        <source></source>
        <extracomment>Type yes no</extracomment>
        <translation>Yes or no</translation>
    </message>
    <message id="tessadocres-168">
        <source></source>
        <extracomment>Value of other type</extracomment>
        <translation>The value doesn't fit the type. Enter a value of that type or choose another type.</translation>
    </message>
    <message id="tessadocres-169">
        <source></source>
        <extracomment>Properties not opened</extracomment>
        <translation>The document %s can't be opened for writing. Your changes are still in the pane.</translation>
    </message>
    <message id="tessadocres-170">
        <source></source>
        <extracomment>Properties not written</extracomment>
        <translation>The properties can't be written. %s</translation>
    </message>
    <message id="tessadocres-171">
        <source></source>
        <extracomment>Leave configuration</extracomment>
        <translation>The properties of the configuration were changed. Write them before going on?</translation>
    </message>
    <message id="tessadocres-172">
        <source></source>
        <extracomment>No configuration data</extracomment>
        <translation>The properties of this configuration can't be read.</translation>
    </message>
    <message id="tessadocres-173">
        <source></source>
        <extracomment>Configuration error</extracomment>
        <translation>The configuration can't be shown. %s</translation>
    </message>
    <message id="tessadocres-174">
        <source></source>
        <extracomment>Properties loaded</extracomment>
        <translation>Properties of %s</translation>
    </message>
    <message id="tessadocres-175">
        <source></source>
        <extracomment>No summary</extracomment>
        <translation>The document has no properties that can be read.</translation>
    </message>
    <message id="tessadocres-176">
        <source></source>
        <extracomment>No summary of</extracomment>
        <translation>The properties of %s can't be read.</translation>
    </message>
    <message id="tessadocres-177">
        <source></source>
        <extracomment>Properties load error</extracomment>
        <translation>The properties can't be loaded. %s</translation>
    </message>
    <message id="tessadocres-178">
        <source></source>
        <extracomment>Properties show error</extracomment>
        <translation>The document's properties can't be shown. %s</translation>
    </message>
    <message id="tessadocres-179">
        <source></source>
        <extracomment>Name created by</extracomment>
        <translation>Created by</translation>
    </message>
    <message id="tessadocres-180">
        <source></source>
        <extracomment>Name created on</extracomment>
        <translation>Created on</translation>
    </message>
    <message id="tessadocres-181">
        <source></source>
        <extracomment>Name date completed</extracomment>
        <translation>Date completed</translation>
    </message>
    <message id="tessadocres-182">
        <source></source>
        <extracomment>Name department</extracomment>
        <translation>Department</translation>
    </message>
    <message id="tessadocres-183">
        <source></source>
        <extracomment>Name destination</extracomment>
        <translation>Destination</translation>
    </message>
    <message id="tessadocres-184">
        <source></source>
        <extracomment>Name disposition</extracomment>
        <translation>Disposition</translation>
    </message>
    <message id="tessadocres-185">
        <source></source>
        <extracomment>Name division</extracomment>
        <translation>Division</translation>
    </message>
    <message id="tessadocres-186">
        <source></source>
        <extracomment>Name document number</extracomment>
        <translation>Document Number</translation>
    </message>
    <message id="tessadocres-187">
        <source></source>
        <extracomment>Name editor</extracomment>
        <translation>Editor</translation>
    </message>
    <message id="tessadocres-188">
        <source></source>
        <extracomment>Name forward to</extracomment>
        <translation>Forward to</translation>
    </message>
    <message id="tessadocres-189">
        <source></source>
        <extracomment>Name group</extracomment>
        <translation>Group</translation>
    </message>
    <message id="tessadocres-190">
        <source></source>
        <extracomment>Name language</extracomment>
        <translation>Language</translation>
    </message>
    <message id="tessadocres-191">
        <source></source>
        <extracomment>Name mailstop</extracomment>
        <translation>Mailstop</translation>
    </message>
    <message id="tessadocres-192">
        <source></source>
        <extracomment>Name matter</extracomment>
        <translation>Matter</translation>
    </message>
    <message id="tessadocres-193">
        <source></source>
        <extracomment>Name office</extracomment>
        <translation>Office</translation>
    </message>
    <message id="tessadocres-194">
        <source></source>
        <extracomment>Name owner</extracomment>
        <translation>Owner</translation>
    </message>
    <message id="tessadocres-195">
        <source></source>
        <extracomment>Name project</extracomment>
        <translation>Project</translation>
    </message>
    <message id="tessadocres-196">
        <source></source>
        <extracomment>Name publisher</extracomment>
        <translation>Publisher</translation>
    </message>
    <message id="tessadocres-197">
        <source></source>
        <extracomment>Name purpose</extracomment>
        <translation>Purpose</translation>
    </message>
    <message id="tessadocres-198">
        <source></source>
        <extracomment>Name received from</extracomment>
        <translation>Received from</translation>
    </message>
    <message id="tessadocres-199">
        <source></source>
        <extracomment>Name recorded by</extracomment>
        <translation>Recorded by</translation>
    </message>
    <message id="tessadocres-200">
        <source></source>
        <extracomment>Name recorded date</extracomment>
        <translation>Recorded date</translation>
    </message>
    <message id="tessadocres-201">
        <source></source>
        <extracomment>Name reference</extracomment>
        <translation>Reference</translation>
    </message>
    <message id="tessadocres-202">
        <source></source>
        <extracomment>Name source</extracomment>
        <translation>Source</translation>
    </message>
    <message id="tessadocres-203">
        <source></source>
        <extracomment>Name telephone</extracomment>
        <translation>Telephone number</translation>
    </message>
    <message id="tessadocres-204">
        <source></source>
        <extracomment>Name typist</extracomment>
        <translation>Typist</translation>
    </message>
    <message id="tessadocres-205">
        <source></source>
        <extracomment>List column</extracomment>
        <translation>Table</translation>
    </message>
    <message id="tessadocres-206">
        <source></source>
        <extracomment>Index column</extracomment>
        <translation>Position</translation>
    </message>
    <message id="tessadocres-207">
        <source></source>
        <extracomment>Menu rename</extracomment>
        <translation>Rename</translation>
    </message>
    <message id="tessadocres-208">
        <source></source>
        <extracomment>Holder long</extracomment>
        <translation>Document path</translation>
    </message>
    <message id="tessadocres-209">
        <source></source>
        <extracomment>Choose replacement</extracomment>
        <translation>Choose the document that takes its place</translation>
    </message>
    <message id="tessadocres-210">
        <source></source>
        <extracomment>Replace by</extracomment>
        <translation>Replace by</translation>
    </message>
    <message id="tessadocres-211">
        <source></source>
        <extracomment>Target refused</extracomment>
        <translation>The document %s can't be used here: it uses this document or one above it.</translation>
    </message>
    <message id="tessadocres-213">
        <source></source>
        <extracomment>Unknown type</extracomment>
        <translation>%s is no name of a part, an assembly or a drawing. Give it the extension of its type.</translation>
    </message>
    <message id="tessadocres-214">
        <source></source>
        <extracomment>Same name</extracomment>
        <translation>The new name is the same as the old one.</translation>
    </message>
    <message id="tessadocres-216">
        <source></source>
        <extracomment>Other type</extracomment>
        <translation>The new document must be of the same type as the old one.</translation>
    </message>
    <message id="tessadocres-218">
        <source></source>
        <extracomment>Target missing</extracomment>
        <translation>The document %s is missing. Choose one that exists.</translation>
    </message>
    <message id="tessadocres-219">
        <source></source>
        <extracomment>Name exists</extracomment>
        <translation>There is a file of that name already. Choose another name.</translation>
    </message>
    <message id="tessadocres-220">
        <source></source>
        <extracomment>Name with folder</extracomment>
        <translation>Enter a file name without a folder. A document is renamed in its own folder.</translation>
    </message>
    <message id="tessadocres-221">
        <source></source>
        <extracomment>Rename done</extracomment>
        <translation>Renamed</translation>
    </message>
    <message id="tessadocres-222">
        <source></source>
        <extracomment>Replace done</extracomment>
        <translation>Replaced</translation>
    </message>
    <message id="tessadocres-223">
        <source></source>
        <extracomment>Searching folder</extracomment>
        <translation>Looking in %s</translation>
    </message>
    <message id="tessadocres-225">
        <source></source>
        <extracomment>Holder is replacement</extracomment>
        <translation>The document %s is the one that takes the place, %s. It is not updated.</translation>
    </message>
    <message id="tessadocres-227">
        <source></source>
        <extracomment>Holder named alike</extracomment>
        <translation>The document %s has the same name as the new one, %s. It is not updated.</translation>
    </message>
    <message id="tessadocres-229">
        <source></source>
        <extracomment>Move failed</extracomment>
        <translation>The document could not be renamed to %s. Check that you may write in the folder.</translation>
    </message>
    <message id="tessadocres-230">
        <source></source>
        <extracomment>Nothing renamed</extracomment>
        <translation>Nothing was renamed.</translation>
    </message>
    <message id="tessadocres-231">
        <source></source>
        <extracomment>Row failed tip</extracomment>
        <translation>Not updated: %s</translation>
    </message>
    <message id="tessadocres-232">
        <source></source>
        <extracomment>Row not updated</extracomment>
        <translation>The document %s could not be updated. It still refers to the old name.</translation>
    </message>
    <message id="tessadocres-233">
        <source></source>
        <extracomment>Export updated</extracomment>
        <translation>updated</translation>
    </message>
    <message id="tessadocres-234">
        <source></source>
        <extracomment>Row updated tip</extracomment>
        <translation>Updated</translation>
    </message>
    <message id="tessadocres-235">
        <source></source>
        <extracomment>Export unticked</extracomment>
        <translation>No</translation>
    </message>
    <message id="tessadocres-236">
        <source></source>
        <extracomment>Opening frame</extracomment>
        <translation>Opening documents</translation>
    </message>
    <message id="tessadocres-237">
        <source></source>
        <extracomment>Use search rules</extracomment>
        <translation>Use &amp;search rules when a document is opened</translation>
    </message>
    <message id="tessadocres-238">
        <source></source>
        <extracomment>Description frame</extracomment>
        <translation>Description</translation>
    </message>
    <message id="tessadocres-239">
        <source></source>
        <extracomment>Show description</extracomment>
        <translation>Show the &amp;description at the head of each pane</translation>
    </message>
    <message id="tessadocres-240">
        <source></source>
        <extracomment>Viewer frame</extracomment>
        <translation>3D viewer</translation>
    </message>
    <message id="tessadocres-241">
        <source></source>
        <extracomment>Folder lists frame</extracomment>
        <translation>Named folder lists</translation>
    </message>
    <message id="tessadocres-242">
        <source></source>
        <extracomment>List name</extracomment>
        <translation>Name of the list</translation>
    </message>
    <message id="tessadocres-243">
        <source></source>
        <extracomment>List folders</extracomment>
        <translation>Folders of the list</translation>
    </message>
    <message id="tessadocres-244">
        <source></source>
        <extracomment>Add folder</extracomment>
        <translation>Add &amp;folder...</translation>
    </message>
    <message id="tessadocres-245">
        <source></source>
        <extracomment>Remove folder</extracomment>
        <translation>Remo&amp;ve folder</translation>
    </message>
    <message id="tessadocres-246">
        <source></source>
        <extracomment>Delete list</extracomment>
        <translation>&amp;Delete list</translation>
    </message>
    <message id="tessadocres-247">
        <source></source>
        <extracomment>Delete word</extracomment>
        <translation>Delete</translation>
    </message>
    <message id="tessadocres-248">
        <source></source>
        <extracomment>Move up</extracomment>
        <translation>Move &amp;up</translation>
    </message>
    <message id="tessadocres-249">
        <source></source>
        <extracomment>Move down</extracomment>
        <translation>Move dow&amp;n</translation>
    </message>
    <message id="tessadocres-250">
        <source></source>
        <extracomment>Clear folders</extracomment>
        <translation>Clear fol&amp;ders</translation>
    </message>
    <message id="tessadocres-251">
        <source></source>
        <extracomment>Subfolders word</extracomment>
        <translation>Subfolders</translation>
    </message>
    <message id="tessadocres-252">
        <source></source>
        <extracomment>Short paths tip</extracomment>
        <translation>Shows file names</translation>
    </message>
    <message id="tessadocres-253">
        <source></source>
        <extracomment>Long paths tip</extracomment>
        <translation>Shows whole paths</translation>
    </message>
    <message id="tessadocres-254">
        <source></source>
        <extracomment>Toggle paths tip</extracomment>
        <translation>Click the heading to change between names and whole paths.</translation>
    </message>
    <message id="tessadocres-255">
        <source></source>
        <extracomment>Drop folder tip</extracomment>
        <translation>Drop a folder here to look in it.</translation>
    </message>
    <message id="tessadocres-256">
        <source></source>
        <extracomment>Option not saved</extracomment>
        <translation>The option could not be saved. Check that your settings can be written.</translation>
    </message>
    <message id="tessadocres-257">
        <source></source>
        <extracomment>List folder what</extracomment>
        <translation>a folder for the list</translation>
    </message>
    <message id="tessadocres-258">
        <source></source>
        <extracomment>List not deleted</extracomment>
        <translation>The folder list %s could not be deleted.</translation>
    </message>
    <message id="tessadocres-259">
        <source></source>
        <extracomment>List name with blank</extracomment>
        <translation>The name of a folder list can't hold blanks.</translation>
    </message>
    <message id="tessadocres-260">
        <source></source>
        <extracomment>List saved</extracomment>
        <translation>The folder list %s was saved.</translation>
    </message>
    <message id="tessadocres-261">
        <source></source>
        <extracomment>Add list</extracomment>
        <translation>A&amp;dd</translation>
    </message>
    <message id="tessadocres-262">
        <source></source>
        <extracomment>Look for in</extracomment>
        <translation>Choose %s</translation>
    </message>
    <message id="tessadocres-263">
        <source></source>
        <extracomment>And word</extracomment>
        <translation>And</translation>
    </message>
    <message id="tessadocres-264">
        <source></source>
        <extracomment>Or word</extracomment>
        <translation>Or</translation>
    </message>
    <message id="tessadocres-265">
        <source></source>
        <extracomment>Rule property</extracomment>
        <translation>Property</translation>
    </message>
    <message id="tessadocres-266">
        <source></source>
        <extracomment>Browse folders</extracomment>
        <translation>Bro&amp;wse...</translation>
    </message>
    <message id="tessadocres-267">
        <source></source>
        <extracomment>Rule condition</extracomment>
        <translation>Condition</translation>
    </message>
    <message id="tessadocres-268">
        <source></source>
        <extracomment>Rule value</extracomment>
        <translation>Value</translation>
    </message>
    <message id="tessadocres-269">
        <source></source>
        <extracomment>Add rule</extracomment>
        <translation>Add r&amp;ule</translation>
    </message>
    <message id="tessadocres-270">
        <source></source>
        <extracomment>Find now</extracomment>
        <translation>Find n&amp;ow</translation>
    </message>
    <message id="tessadocres-271">
        <source></source>
        <extracomment>Remove rule</extracomment>
        <translation>&amp;Remove rule</translation>
    </message>
    <message id="tessadocres-272">
        <source></source>
        <extracomment>Clear rules</extracomment>
        <translation>C&amp;lear rules</translation>
    </message>
    <message id="tessadocres-273">
        <source></source>
        <extracomment>Save search</extracomment>
        <translation>Sa&amp;ve search...</translation>
    </message>
    <message id="tessadocres-274">
        <source></source>
        <extracomment>Load search</extracomment>
        <translation>&amp;Load search...</translation>
    </message>
    <message id="tessadocres-275">
        <source></source>
        <extracomment>With subfolders</extracomment>
        <translation>With &amp;subfolders</translation>
    </message>
    <message id="tessadocres-276">
        <source></source>
        <extracomment>Rules</extracomment>
        <translation>Rules</translation>
    </message>
    <message id="tessadocres-277">
        <source></source>
        <extracomment>Results</extracomment>
        <translation>Results</translation>
    </message>
    <message id="tessadocres-278">
        <source></source>
        <extracomment>Connective column</extracomment>
        <translation>Link</translation>
    </message>
    <message id="tessadocres-279">
        <source></source>
        <extracomment>Or text</extracomment>
        <translation>OR</translation>
    </message>
    <message id="tessadocres-280">
        <source></source>
        <extracomment>Value field</extracomment>
        <translation>Value:</translation>
    </message>
    <message id="tessadocres-281">
        <source></source>
        <extracomment>Property field</extracomment>
        <translation>Property:</translation>
    </message>
    <message id="tessadocres-282">
        <source></source>
        <extracomment>Condition field</extracomment>
        <translation>Condition:</translation>
    </message>
    <message id="tessadocres-283">
        <source></source>
        <extracomment>Search folders</extracomment>
        <translation>Folders:</translation>
    </message>
    <message id="tessadocres-284">
        <source></source>
        <extracomment>Created column</extracomment>
        <translation>Created</translation>
    </message>
    <message id="tessadocres-285">
        <source></source>
        <extracomment>Modified column</extracomment>
        <translation>Changed</translation>
    </message>
    <message id="tessadocres-286">
        <source></source>
        <extracomment>Folder column</extracomment>
        <translation>Folder</translation>
    </message>
    <message id="tessadocres-287">
        <source></source>
        <extracomment>Search file filter</extracomment>
        <translation>Saved searches (*.tdb)|*.tdb|All files (*.*)|*.*</translation>
    </message>
    <message id="tessadocres-288">
        <source></source>
        <extracomment>Search file default</extracomment>
        <translation>search.tdb</translation>
    </message>
    <message id="tessadocres-289">
        <source></source>
        <extracomment>Search file error</extracomment>
        <translation>The saved search can't be read or written. Check the file and its folder.</translation>
    </message>
    <message id="tessadocres-290">
        <source></source>
        <extracomment>Overwrite search</extracomment>
        <translation>There is a saved search of that name already. Overwrite it?</translation>
    </message>
    <message id="tessadocres-291">
        <source></source>
        <extracomment>Search saved</extracomment>
        <translation>The search was saved.</translation>
    </message>
    <message id="tessadocres-292">
        <source></source>
        <extracomment>Search loaded</extracomment>
        <translation>The search was loaded.</translation>
    </message>
    <message id="tessadocres-293">
        <source></source>
        <extracomment>Documents found</extracomment>
        <translation>%s documents found.</translation>
    </message>
    <message id="tessadocres-294">
        <source></source>
        <extracomment>Search stopped</extracomment>
        <translation>The search was stopped.</translation>
    </message>
    <message id="tessadocres-295">
        <source></source>
        <extracomment>Searching in</extracomment>
        <translation>Searching in %s</translation>
    </message>
    <message id="tessadocres-296">
        <source></source>
        <extracomment>Is exactly</extracomment>
        <translation>is (exactly)</translation>
    </message>
    <message id="tessadocres-297">
        <source></source>
        <extracomment>Is not</extracomment>
        <translation>is not</translation>
    </message>
    <message id="tessadocres-298">
        <source></source>
        <extracomment>Contains</extracomment>
        <translation>contains</translation>
    </message>
    <message id="tessadocres-299">
        <source></source>
        <extracomment>Not equal</extracomment>
        <translation>not =</translation>
    </message>
    <message id="tessadocres-300">
        <source></source>
        <extracomment>Is yes</extracomment>
        <translation>is Yes</translation>
    </message>
    <message id="tessadocres-301">
        <source></source>
        <extracomment>Is no</extracomment>
        <translation>is No</translation>
    </message>
    <message id="tessadocres-302">
        <source></source>
        <extracomment>Last saved by</extracomment>
        <translation>Last saved by</translation>
    </message>
    <message id="tessadocres-303">
        <source></source>
        <extracomment>Locked by</extracomment>
        <translation>Locked by</translation>
    </message>
    <message id="tessadocres-304">
        <source></source>
        <extracomment>Created</extracomment>
        <translation>Created</translation>
    </message>
    <message id="tessadocres-305">
        <source></source>
        <extracomment>Not numeric</extracomment>
        <translation>The condition "%s" needs a number. Enter one.</translation>
    </message>
    <message id="tessadocres-306">
        <source></source>
        <extracomment>Loading</extracomment>
        <translation>Loading...</translation>
    </message>
    <message id="tessadocres-307">
        <source></source>
        <extracomment>No preview</extracomment>
        <translation>This document stores no preview.</translation>
    </message>
    <message id="tessadocres-308">
        <source></source>
        <extracomment>Choose function</extracomment>
        <translation>Choose a function from the icon bar or the menus.</translation>
    </message>
    <message id="tessadocres-309">
        <source></source>
        <extracomment>Open document title</extracomment>
        <translation>Open Document</translation>
    </message>
    <message id="tessadocres-310">
        <source></source>
        <extracomment>Node missing</extracomment>
        <translation>The document %s is missing.</translation>
    </message>
    <message id="tessadocres-311">
        <source></source>
        <extracomment>Document not found</extracomment>
        <translation>The document %s can't be opened.</translation>
    </message>
    <message id="tessadocres-312">
        <source></source>
        <extracomment>Circular node</extracomment>
        <translation>%s(circular reference)</translation>
    </message>
    <message id="tessadocres-313">
        <source></source>
        <extracomment>Circular reference</extracomment>
        <translation>The document %s refers to itself through its references. It is shown once only.</translation>
    </message>
    <message id="tessadocres-314">
        <source></source>
        <extracomment>Walk error</extracomment>
        <translation>The references of %s can't be read. %s</translation>
    </message>
    <message id="tessadocres-315">
        <source></source>
        <extracomment>Rename</extracomment>
        <translation>Rename</translation>
    </message>
    <message id="tessadocres-316">
        <source></source>
        <extracomment>Copy</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="tessadocres-317">
        <source></source>
        <extracomment>Replace</extracomment>
        <translation>Replace</translation>
    </message>
    <message id="tessadocres-318">
        <source></source>
        <extracomment>Preview error</extracomment>
        <translation>The preview of %s can't be shown.</translation>
    </message>
    <message id="tessadocres-319">
        <source></source>
        <extracomment>Full screen tip</extracomment>
        <translation>Shows one picture in the whole pane.</translation>
    </message>
    <message id="tessadocres-320">
        <source></source>
        <extracomment>Clear previews</extracomment>
        <translation>Clear previews</translation>
    </message>
    <message id="tessadocres-321">
        <source></source>
        <extracomment>Open in cad</extracomment>
        <translation>Open in the CAD program</translation>
    </message>
    <message id="tessadocres-322">
        <source></source>
        <extracomment>Copy path</extracomment>
        <translation>Copy path</translation>
    </message>
    <message id="tessadocres-323">
        <source></source>
        <extracomment>Show in folder</extracomment>
        <translation>Show in folder</translation>
    </message>
    <message id="tessadocres-324">
        <source></source>
        <extracomment>Expand all</extracomment>
        <translation>Expand all</translation>
    </message>
    <message id="tessadocres-326">
        <source></source>
        <extracomment>Reference long</extracomment>
        <translation>Reference path</translation>
    </message>
    <message id="tessadocres-327">
        <source></source>
        <extracomment>Reference short</extracomment>
        <translation>Reference</translation>
    </message>
    <message id="tessadocres-328">
        <source></source>
        <extracomment>Folders not found</extracomment>
        <translation>These folders were not found: %s</translation>
    </message>
    <message id="tessadocres-329">
        <source></source>
        <extracomment>Search rules</extracomment>
        <translation>Search &amp;scope...</translation>
    </message>
    <message id="tessadocres-331">
        <source></source>
        <extracomment>Menu replace</extracomment>
        <translation>Replace</translation>
    </message>
    <message id="tessadocres-332">
        <source></source>
        <extracomment>About</extracomment>
        <translation>About Tessaforma Docbench</translation>
    </message>
    <message id="tessadocres-333">
        <source></source>
        <extracomment>Vendor page</extracomment>
        <translation>&amp;Web page</translation>
    </message>
    <message id="tessadocres-334">
        <source></source>
        <extracomment>About description</extracomment>
        <translation>The document manager of the Tessaforma CAD family</translation>
    </message>
    <message id="tessadocres-335">
        <source></source>
        <extracomment>Version</extracomment>
        <translation>Version</translation>
    </message>
    <message id="tessadocres-336">
        <source></source>
        <extracomment>Disclaimer</extracomment>
        <translation>This program comes without any warranty. See the licence for the conditions.</translation>
    </message>
    <message id="tessadocres-337">
        <source></source>
        <extracomment>Add property</extracomment>
        <translation>&amp;Add</translation>
    </message>
    <message id="tessadocres-338">
        <source></source>
        <extracomment>Remove property</extracomment>
        <translation>&amp;Remove</translation>
    </message>
    <message id="tessadocres-339">
        <source></source>
        <extracomment>Yes word</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="tessadocres-340">
        <source></source>
        <extracomment>No word</extracomment>
        <translation>No</translation>
    </message>
    <message id="tessadocres-341">
        <source></source>
        <extracomment>Unlocked</extracomment>
        <translation>Not locked</translation>
    </message>
    <message id="tessadocres-342">
        <source></source>
        <extracomment>Toolbar rename</extracomment>
        <translation>Rename</translation>
    </message>
    <message id="tessadocres-343">
        <source></source>
        <extracomment>Toolbar view</extracomment>
        <translation>View</translation>
    </message>
    <message id="tessadocres-344">
        <source></source>
        <extracomment>Toolbar open</extracomment>
        <translation>Open</translation>
    </message>
    <message id="tessadocres-345">
        <source></source>
        <extracomment>Icon bar heading</extracomment>
        <translation>Functions</translation>
    </message>
    <message id="tessadocres-346">
        <source></source>
        <extracomment>Locked</extracomment>
        <translation>Locked</translation>
    </message>
    <message id="tessadocres-347">
        <source></source>
        <extracomment>File name label</extracomment>
        <translation>File name</translation>
    </message>
    <message id="tessadocres-348">
        <source></source>
        <extracomment>Use full screen</extracomment>
        <translation>Show one &amp;picture</translation>
    </message>
    <message id="tessadocres-349">
        <source></source>
        <extracomment>Opened documents</extracomment>
        <translation>Opened documents</translation>
    </message>
    <message id="tessadocres-350">
        <source></source>
        <extracomment>Export done mark</extracomment>
        <translation>done</translation>
    </message>
    <message id="tessadocres-351">
        <source></source>
        <extracomment>Create folder</extracomment>
        <translation>&amp;Create folder</translation>
    </message>
    <message id="tessadocres-352">
        <source></source>
        <extracomment>Target folder missing</extracomment>
        <translation>The folder %s is missing. Choose another one, create it, or skip.</translation>
    </message>
    <message id="tessadocres-353">
        <source></source>
        <extracomment>Parent not updated tip</extracomment>
        <translation>Not updated: %s</translation>
    </message>
    <message id="tessadocres-354">
        <source></source>
        <extracomment>Copy rows</extracomment>
        <translation>%s documents listed, %s of them missing.</translation>
    </message>
    <message id="tessadocres-355">
        <source></source>
        <extracomment>Checking targets</extracomment>
        <translation>Checking the targets...</translation>
    </message>
    <message id="tessadocres-356">
        <source></source>
        <extracomment>Checking references</extracomment>
        <translation>Checking that %s doesn't refer to itself...</translation>
    </message>
    <message id="tessadocres-357">
        <source></source>
        <extracomment>Rename result</extracomment>
        <translation>%s references were updated, %s failed.</translation>
    </message>
    <message id="tessadocres-358">
        <source></source>
        <extracomment>Updating document</extracomment>
        <translation>Updating %s...</translation>
    </message>
    <message id="tessadocres-359">
        <source></source>
        <extracomment>Replace with label</extracomment>
        <translation>Replace with</translation>
    </message>
    <message id="tessadocres-360">
        <source></source>
        <extracomment>Search first question</extracomment>
        <translation>You have not searched for the documents that use this one. Search for them first?</translation>
    </message>
    <message id="tessadocres-361">
        <source></source>
        <extracomment>Row read only</extracomment>
        <translation>This document can't be written, so it can't be updated.</translation>
    </message>
    <message id="tessadocres-362">
        <source></source>
        <extracomment>Preview of</extracomment>
        <translation>Preview of %s</translation>
    </message>
    <message id="tessadocres-363">
        <source></source>
        <extracomment>No document</extracomment>
        <translation>No document is open.</translation>
    </message>
    <message id="tessadocres-364">
        <source></source>
        <extracomment>Search error</extracomment>
        <translation>The search ended with an error. %s</translation>
    </message>
    <message id="tessadocres-365">
        <source></source>
        <extracomment>Target folder read only</extracomment>
        <translation>You can't write into the folder %s. Choose another one.</translation>
    </message>
    <message id="tessadocres-366">
        <source></source>
        <extracomment>Copying file</extracomment>
        <translation>Copying to %s...</translation>
    </message>
    <message id="tessadocres-367">
        <source></source>
        <extracomment>Configuration load error</extracomment>
        <translation>The configurations can't be read. %s</translation>
    </message>
    <message id="tessadocres-368">
        <source></source>
        <extracomment>Hyperlink save error</extracomment>
        <translation>The hyperlinks can't be saved. %s</translation>
    </message>
    <message id="tessadocres-369">
        <source></source>
        <extracomment>Hyperlink count</extracomment>
        <translation>%s hyperlinks</translation>
    </message>
    <message id="tessadocres-370">
        <source></source>
        <extracomment>Overwrite title</extracomment>
        <translation>Overwrite File</translation>
    </message>
    <message id="tessadocres-371">
        <source></source>
        <extracomment>Kilobytes</extracomment>
        <translation>%s KB</translation>
    </message>
    <message id="tessadocres-372">
        <source></source>
        <extracomment>Export error</extracomment>
        <translation>The list can't be written to a spreadsheet. %s</translation>
    </message>
    <message id="tessadocres-373">
        <source></source>
        <extracomment>Access in use</extracomment>
        <translation>The document %s is in use by another program. Close it there and try again.</translation>
    </message>
    <message id="tessadocres-374">
        <source></source>
        <extracomment>Access read only</extracomment>
        <translation>The document %s is read-only. Take off its write protection and try again.</translation>
    </message>
    <message id="tessadocres-375">
        <source></source>
        <extracomment>Access refused</extracomment>
        <translation>The document %s can't be written. Check that it is there and that you may change it.</translation>
    </message>
    <message id="tessadocres-376">
        <source></source>
        <extracomment>Undelete</extracomment>
        <translation>Keep</translation>
    </message>
    <message id="tessadocres-377">
        <source></source>
        <extracomment>Folders looked at</extracomment>
        <translation>Folders looked at</translation>
    </message>
    <message id="tessadocres-378">
        <source></source>
        <extracomment>Documents looked at</extracomment>
        <translation>Documents looked at</translation>
    </message>
    <message id="tessadocres-379">
        <source></source>
        <extracomment>Files not read</extracomment>
        <translation>Files that could not be read</translation>
    </message>
    <message id="tessadocres-380">
        <source></source>
        <extracomment>Locked by other</extracomment>
        <translation>The document %s is locked by %s. Only that user can unlock it.</translation>
    </message>
    <message id="tessadocres-381">
        <source></source>
        <extracomment>Lock word</extracomment>
        <translation>Lock</translation>
    </message>
    <message id="tessadocres-382">
        <source></source>
        <extracomment>Unlock word</extracomment>
        <translation>Unlock</translation>
    </message>
    <message id="tessadocres-383">
        <source></source>
        <extracomment>Open web folder</extracomment>
        <translation>Open from a web folder</translation>
    </message>
    <message id="tessadocres-394">
        <source></source>
        <extracomment>Use viewer</extracomment>
        <translation>Show models in the 3D &amp;viewer</translation>
    </message>
    <message id="tessadocres-400">
        <source></source>
        <extracomment>Logging frame</extracomment>
        <translation>Performance log</translation>
    </message>
    <message id="tessadocres-401">
        <source></source>
        <extracomment>Use logging</extracomment>
        <translation>Send the performance &amp;log</translation>
    </message>
</context>
</TS>

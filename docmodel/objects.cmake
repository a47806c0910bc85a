# The document layer: the parts' contents, the access objects, the plug-in and the tool.
target_sources(docmodel_core PRIVATE
    access.cpp
    builder.cpp
    configurationinfo.cpp
    coreproperties.cpp
    customproperties.cpp
    documentchange.cpp
    documentcontent.cpp
    documentfileobject.cpp
    documentinfoobject.cpp
    documentpart.cpp
    documentreferences.cpp
    filestate.cpp
    folderlisting.cpp
    foldermemory.cpp
    foldersearch.cpp
    foldersearcherobject.cpp
    indexentry.cpp
    languagesettingsobject.cpp
    opc.cpp
    parallel.cpp
    picture.cpp
    preview.cpp
    previewextractorobject.cpp
    propertyfolder.cpp
    propertyqueryobject.cpp
    propertyreadahead.cpp
    propertyrecord.cpp
    propertyrule.cpp
    propertyset.cpp
    propertyvalue.cpp
    referenceindex.cpp
    referencepath.cpp
    referencetarget.cpp
    webaddress.cpp
    weberror.cpp
    webfolderclientobject.cpp
    webfolderlistingobject.cpp
    weblogin.cpp
    webmemory.cpp
    webpropfind.cpp
    webreceiver.cpp
    websession.cpp
    webupload.cpp
    webversion.cpp
    webwatch.cpp
    xml.cpp
    # What names and addresses mean, how users write dates and numbers, and who the user is have one
    # home; the library takes them from there without taking the services.
    ${PROJECT_SOURCE_DIR}/services/localvalues.cpp
    ${PROJECT_SOURCE_DIR}/services/paths.cpp
    ${PROJECT_SOURCE_DIR}/services/username.cpp
    ${PROJECT_SOURCE_DIR}/services/webauthority.cpp)

# A program loads it from its own folder by this name.
add_library(docmodel MODULE plugin.cpp)
set_target_properties(docmodel PROPERTIES PREFIX "")
target_link_libraries(docmodel PRIVATE docmodel_core)

add_executable(docmodel_tool
    tool/addcommands.cpp
    tool/command.cpp
    tool/main.cpp
    tool/makelibrary.cpp
    tool/newcommand.cpp
    tool/packagecommands.cpp
    tool/setproperty.cpp
    tool/show.cpp)
set_target_properties(docmodel_tool PROPERTIES OUTPUT_NAME docmodel)
target_link_libraries(docmodel_tool PRIVATE docmodel_core)

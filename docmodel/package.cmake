# The package layer: the code that knows the bytes of a document's file.
target_sources(docmodel_core PRIVATE
    accessstate.cpp
    compaction.cpp
    endsearch.cpp
    fileattributes.cpp
    filelock.cpp
    fileops.cpp
    package.cpp
    packagecreate.cpp
    packageerror.cpp
    packagetail.cpp
    packagewriter.cpp
    partdecoder.cpp
    partencoder.cpp
    siblingfile.cpp
    stateimage.cpp
    zipdirectory.cpp
    zipformat.cpp)

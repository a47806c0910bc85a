#!/usr/bin/env python3
"""Writes the seeds that another program than ours would make into the folder given."""

import io
import pathlib
import sys
import zipfile

FOLDER = pathlib.Path(sys.argv[1])


class Pipe(io.RawIOBase):
    """A target that can't seek, so that sizes come behind the data."""

    def __init__(self):
        super().__init__()
        self.bytes = b""

    def writable(self):
        return True

    def write(self, data):
        self.bytes += bytes(data)
        return len(data)


def fill(package, zip64=False):
    for name, text in (
        ("[Content_Types].xml", "<Types/>"),
        ("docProps/core.xml", "<core>" + "text " * 50 + "</core>"),
        ("docmodel/document.xml", "<document/>"),
    ):
        info = zipfile.ZipInfo(name)
        info.compress_type = zipfile.ZIP_DEFLATED
        with package.open(info, "w", force_zip64=zip64) as part:
            part.write(text.encode())


for name, zip64 in (("deflated", False), ("zip64", True)):
    with zipfile.ZipFile(FOLDER / f"{name}.zip", "w") as archive:
        fill(archive, zip64)

pipe = Pipe()
with zipfile.ZipFile(pipe, "w") as archive:
    fill(archive)
(FOLDER / "descriptors.zip").write_bytes(pipe.bytes)

with zipfile.ZipFile(FOLDER / "comment.zip", "w") as archive:
    archive.comment = b"another program's comment"
    archive.writestr(zipfile.ZipInfo("folder/"), "")
    archive.writestr(zipfile.ZipInfo("Größe.txt"), "x")

with zipfile.ZipFile(FOLDER / "empty.zip", "w"):
    pass

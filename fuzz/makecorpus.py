#!/usr/bin/env python3
"""makecorpus.py FOLDER TOOL: writes the seeds into a folder, with the tool docmodel and with zipfile."""

import io
import pathlib
import subprocess
import sys
import tempfile
import zipfile

FOLDER = pathlib.Path(sys.argv[1])
TOOL = sys.argv[2]


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


def tool(command, path, *arguments, options=()):
    subprocess.run([TOOL, command, *options, path, *arguments], check=True)


created = FOLDER / "created.tfmprt"
created.unlink(missing_ok=True)
tool("new", created)
scratch = tempfile.TemporaryDirectory(dir="/tmp")  # relative paths are stored, and are to be short
saved = pathlib.Path(scratch.name) / "saved.tfmprt"
saved.write_bytes(created.read_bytes())
tool("add-reference", saved, "/parts/screw.tfmprt", options=["--count", "8"])
tool("add-reference", saved, "/parts/gear.tfmprt", options=["--external", "derived"])
tool("add-hyperlink", saved, "http://server/a?b&c")
tool("add-configuration", saved, "Größe 1", options=["--property", "Weight=2"])
tool("set-property", saved, "Checked", "yes", options=["--type", "yesno"])
tool("set-property", saved, "Due", "2004-05-31", options=["--type", "date"])
tool("lock", saved, options=["--user", "erika"])
tool("compact", saved)
with zipfile.ZipFile(saved) as archive:
    for name in ("docmodel/document.xml", "docProps/core.xml", "docProps/custom.xml"):
        (FOLDER / pathlib.Path(name).name).write_bytes(archive.read(name))
tool("add-hyperlink", saved, "notes.txt")
(FOLDER / saved.name).write_bytes(saved.read_bytes())
(FOLDER / "torn.tfmprt").write_bytes(saved.read_bytes()[:-20])
# Another program adds a part and carries our comment over.
edited = FOLDER / "edited.tfmprt"
edited.write_bytes(saved.read_bytes())
with zipfile.ZipFile(edited, "a") as archive:
    archive.writestr(zipfile.ZipInfo("theirs.txt"), "x")

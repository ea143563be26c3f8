"""Makes an installation package from a staged release: make_msi.py RELEASE x64|x86 VERSION REGISTRY... MSI

REGISTRY is what vela-registry printed, for win64 and win32 or for win32 alone, with the library at @FOLDER@\\Vela.ocx.
The same release gives the same bytes: identities are taken from names and contents, times are the release's fixed one.
"""
import hashlib
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import uuid
from xml.sax.saxutils import quoteattr

FAMILY = uuid.UUID("B9A3F5C0-6C0B-4B1E-9D54-2F6D6C1B7A11")  # every identity below is made from this and a name
FIXED_TIME = 1767225600  # 2026-01-01, in seconds since 1970
SUMMARY = uuid.UUID("F29F85E0-4FF9-1068-AB91-08002B27B3D9").bytes_le  # names the section of the summary's properties
LANGUAGE = "1046"
REFUSED = {"x64": ("VersionNT64", "Este pacote serve ao Windows de 64 bits. Use vela-{}-x86.msi."),
           "x86": ("NOT VersionNT64", "Este pacote serve ao Windows de 32 bits. Use vela-{}-x64.msi.")}
VERSIONED = {"Vela.ocx", "vela-console.exe"}
SHORT = re.compile(r"\w{1,8}(\.\w{1,3})?")
NOT_INSTALLED = {"install.cmd", "uninstall.cmd", "SHA256SUMS"}


def identity(*names):
    return str(uuid.uuid5(FAMILY, "/".join(names))).upper()


def element(name, **attributes):
    return f"<{name} " + " ".join(f"{key}={quoteattr(str(value))}" for key, value in attributes.items())


class Package:
    def __init__(self, release, architecture, version, registries):
        self.release, self.architecture, self.version = release, architecture, version
        self.registries = registries
        self.components, self.queries = [], []

    # The 64-bit package has the 32-bit library in the system's folder of 32-bit programs, where nothing else is.
    def is_beside(self, folder):
        return self.architecture == "x64" and folder == "win32"

    def files(self):
        skipped = "win64" if self.architecture == "x86" else None
        for path in sorted(p for p in self.release.rglob("*") if p.is_file()):
            name = path.relative_to(self.release)
            if name.parts[0] != skipped and name.as_posix() not in NOT_INSTALLED:
                yield path, name

    def registry_values(self, folder):
        text = self.registries[folder].replace("@FOLDER@\\Vela.ocx", f"[#{folder}.ocx]").replace("@FOLDER@", f"[{self.folder_id(folder)}]")
        for line in text.splitlines():
            key, name, value = line.split("\t")
            named = {"Name": name} if name else {}
            yield element("RegistryValue", Root="HKLM", Key="Software\\Classes\\" + key, Type="string", Value=value, **named) + "/>"

    def folder_id(self, folder):
        if self.is_beside(folder):
            return "D_beside"
        return "D_" + re.sub(r"[^A-Za-z0-9_]", "_", folder or "main")

    # One component for the files of each folder; the library's also holds what registering it writes.
    def component(self, folder, files):
        name = self.folder_id(folder).replace("D_", "C_")
        self.components.append(name)
        wide = "yes" if self.architecture == "x64" and not self.is_beside(folder) else "no"
        yield element("Component", Id=name, Guid=identity(self.architecture, folder or "."), Win64=wide) + ">"
        key = folder + "/Vela.ocx" if folder in self.registries else files[0][1].as_posix()
        for path, file in files:
            file_id = folder + ".ocx" if file.name == "Vela.ocx" else f"F{self.numbers[file.as_posix()]:03}"
            self.settle_file(file_id, file)
            chosen = {"KeyPath": "yes"} if file.as_posix() == key else {}
            yield element("File", Id=file_id, Name=file.name, Source=file.as_posix(), **chosen) + "/>"
        if folder in self.registries:
            yield from self.registry_values(folder)
        yield "</Component>"

    # What wixl leaves out: the name in short beside a long one, and the versions of files, without which an older
    # library would count as the same.
    def settle_file(self, file_id, file):
        if not SHORT.fullmatch(file.name):
            name = f"F{self.numbers[file.as_posix()]:03}{file.suffix[:4]}|{file.name}"
            self.queries.append(f"UPDATE `File` SET `FileName`='{name}' WHERE `File`='{file_id}'")
        if file.name in VERSIONED:
            self.queries.append(f"UPDATE `File` SET `Version`='{self.version}.0', `Language`='{LANGUAGE}' WHERE `File`='{file_id}'")

    def settle_directory(self, directory_id, name):
        if not SHORT.fullmatch(name):
            self.queries.append(f"UPDATE `Directory` SET `DefaultDir`='{name[:6]}~1|{name}' WHERE `Directory`='{directory_id}'")

    def directory(self, folder, content):
        inside = list(self.component(folder, content[folder])) if content[folder] else []
        for below in sorted(content):
            if below and (below.rpartition("/")[0] == folder) and not self.is_beside(below):
                inside += self.directory(below, content)
        return self.directory_element(self.folder_id(folder), folder.rpartition("/")[2] or "Vela", inside)

    def directory_element(self, directory_id, name, inside):
        self.settle_directory(directory_id, name)
        return [element("Directory", Id=directory_id, Name=name) + ">", *inside, "</Directory>"]

    def source(self):
        content, self.numbers = {}, {}
        for number, (path, name) in enumerate(self.files()):
            folder = "" if name.parent.as_posix() == "." else name.parent.as_posix()
            self.numbers[name.as_posix()] = number
            content.setdefault(folder, []).append((path, name))
            while folder:  # folders that hold folders only
                folder = folder.rpartition("/")[0]
                content.setdefault(folder, [])
        main = "ProgramFiles64Folder" if self.architecture == "x64" else "ProgramFilesFolder"
        roots = [element("Directory", Id=main) + ">", *self.directory("", content), "</Directory>"]
        if self.architecture == "x64":
            beside = self.directory_element("D_beside", "Vela", self.component("win32", content["win32"]))
            roots += [element("Directory", Id="ProgramFilesFolder") + ">", *beside, "</Directory>"]
        condition, message = REFUSED[self.architecture]
        return "\n".join([
            '<?xml version="1.0" encoding="utf-8"?>', '<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi">',
            element("Product", Id=identity(self.architecture, "product", self.version), Name="Vela " + self.version, Language=LANGUAGE,
                    Version=self.version, Manufacturer="The Vela authors", UpgradeCode=identity(self.architecture, "upgrades")) + ">",
            element("Package", InstallerVersion=200, Compressed="yes", InstallScope="perMachine") + "/>",
            element("MajorUpgrade", DowngradeErrorMessage="Uma Vela mais nova existe neste computador; remova-a antes.") + "/>",
            element("Condition", Message=message.format(self.version)) + ">" + condition + "</Condition>",
            element("Property", Id="ARPNOMODIFY", Value=1) + "/>",
            element("Media", Id=1, Cabinet="vela.cab", EmbedCab="yes") + "/>",
            element("Directory", Id="TARGETDIR", Name="SourceDir") + ">", *roots, "</Directory>",
            element("Feature", Id="Vela", Title="Vela", Level=1) + ">",
            *(element("ComponentRef", Id=name) + "/>" for name in self.components), "</Feature>", "</Product></Wix>", ""])


def contents_identity(package, source):
    digest = hashlib.sha256(source.encode())
    for path, name in package.files():
        digest.update(name.as_posix().encode() + b"\0" + path.read_bytes())
    return "{" + identity("contents", digest.hexdigest()) + "}"


# The times of making and of saving, properties 12 and 13 of the summary, 100 ns units since 1601.
def settle_times(target):
    data = bytearray(target.read_bytes())
    section = data.find(SUMMARY)  # behind a head of 28 bytes, followed by the offset of the properties
    if section < 28 or data.find(SUMMARY, section + 1) >= 0:
        sys.exit(f"{target}: the summary is not where it was expected")
    place = section - 28 + struct.unpack_from("<I", data, section + 16)[0]
    settled = 0
    for i in range(struct.unpack_from("<I", data, place + 4)[0]):
        number, offset = struct.unpack_from("<II", data, place + 8 + 8 * i)
        if number in (12, 13):
            struct.pack_into("<Q", data, place + offset + 4, (FIXED_TIME + 11644473600) * 10000000)
            settled += 1
    if settled != 2:
        sys.exit(f"{target}: {settled} times in the summary, not 2")
    target.write_bytes(data)


def main():
    release, architecture, version, *registries, target = sys.argv[1:]
    names = ("win64", "win32") if architecture == "x64" else ("win32",)
    registries = dict(zip(names, (pathlib.Path(path).read_text() for path in registries), strict=True))
    package = Package(pathlib.Path(release), architecture, version, registries)
    target = pathlib.Path(target)
    source = package.source()
    environment = {**os.environ, "TZ": "UTC", "LC_ALL": "C.UTF-8"}
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "vela.wxs"
        file.write_text(source, encoding="ascii")  # the package's own tables name no code page
        subprocess.run(["wixl", "-a", architecture, "-o", target.absolute(), file], check=True, env=environment, cwd=release)
    subprocess.run(["msibuild", target, "-q", *package.queries], check=True, env=environment)
    template = ("x64" if architecture == "x64" else "Intel") + ";" + LANGUAGE
    subprocess.run(["msibuild", target, "-s", f"Vela {version}", "The Vela authors", template, contents_identity(package, source)],
                   check=True, env=environment)
    settle_times(target)


main()

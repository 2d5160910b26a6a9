# SPDX-License-Identifier: GPL-3.0-or-later
"""A local FTP server for the benchmarks, with anonymous access."""

import os
import shutil
import signal
import socket
import subprocess
import time
from pathlib import Path

SETTINGS = """listen=YES
listen_ipv6=NO
listen_address={host}
listen_port={port}
background=NO
anonymous_enable=YES
no_anon_password=YES
anon_root={root}
local_enable=NO
write_enable=YES
anon_upload_enable=YES
anon_other_write_enable=YES
anon_world_readable_only=NO
anon_umask=022
secure_chroot_dir={empty}
seccomp_sandbox=NO
connect_from_port_20=NO
xferlog_enable=NO
"""


class Vsftpd:
    """Serves the folder `files` inside a with statement; path() gives a file's path on the server."""

    def __init__(self, work):
        self.root = work / "ftp"
        self.files = self.root / "files"
        self.host = "127.0.0.1"
        self.is_root = os.geteuid() == 0

    def __enter__(self):
        shutil.rmtree(self.root, ignore_errors=True)
        self.files.mkdir(parents=True)
        with socket.socket() as free:
            free.bind((self.host, 0))
            self.port = free.getsockname()[1]
        empty = self.root / "empty"
        empty.mkdir()
        text = SETTINGS.format(host=self.host, port=self.port, root=self.root, empty=empty)
        if not self.is_root:
            text += "run_as_launching_user=YES\n"
        settings = self.root / "vsftpd.conf"
        settings.write_text(text)
        self.give_to_server(self.files)
        self.process = subprocess.Popen(["/usr/sbin/vsftpd", settings])
        self.wait_until_it_answers()
        return self

    def __exit__(self, *_):
        self.process.send_signal(signal.SIGTERM)
        self.process.wait()
        shutil.rmtree(self.root, ignore_errors=True)

    def wait_until_it_answers(self):
        end = time.monotonic() + 10
        while True:
            try:
                socket.create_connection((self.host, self.port), 1).close()
                return
            except OSError:
                if self.process.poll() is not None or time.monotonic() > end:
                    raise
                time.sleep(0.01)

    def give_to_server(self, path):
        """vsftpd serves anonymous users as the user ftp, who must own the files and be able to traverse every folder above."""
        if self.is_root:
            shutil.chown(path, "ftp")
            for folder in Path(path).resolve().parents:
                folder.chmod(folder.stat().st_mode | 0o011)

    def path(self, name):
        """A file's path on the server. A server that wasn't started by root can't confine its users to a folder."""
        return f"/files/{name}" if self.is_root else f"{self.files}/{name}"

    def add(self, name, size):
        """Makes a file of random bytes."""
        file = self.files / name
        file.parent.mkdir(exist_ok=True)
        with open(file, "wb") as out:
            for begin in range(0, size, 1 << 20):
                out.write(os.urandom(min(1 << 20, size - begin)))
        self.give_to_server(file.parent)
        self.give_to_server(file)

    def url(self, name):
        return f"ftp://{self.host}:{self.port}/{self.path(name).replace('/', '%2F', 1)}"

#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""ftpserver.py HOST PORT USER PASSWORD FOLDER: serves the folder to one user until it is killed."""

import logging
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer


def main(host, port, user, password, folder):
    logging.basicConfig(level=logging.ERROR)
    authorizer = DummyAuthorizer()
    authorizer.add_user(user, password, folder, perm="elradfmwMT")
    FTPHandler.authorizer = authorizer
    # A refused login is answered at once.
    FTPHandler.auth_failed_timeout = 0
    FTPServer((host, int(port)), FTPHandler).serve_forever()


if __name__ == "__main__":
    main(*sys.argv[1:])

"""Unusual answers of a web site: a test writes PATH.answer, a JSON object, beside the file PATH.

    {"status": 302, "headers": {"Location": "http://..."}}    that status with these headers
    {"bytes": 1000}                                            announces the whole file, sends this many bytes and closes
    {"bytes": 1000, "hang": true}                              the same, but keeps the connection open without sending more
"""

import json
import os


def find(path: str) -> dict | None:
    """The odd answer for a file of a site, or None."""
    try:
        with open(f"{path}.answer") as file:
            return json.load(file)
    except FileNotFoundError:
        return None


def give(handler, path: str, answer: dict) -> None:
    """Writes the answer to the client of a http.server handler. A hanging answer returns when the client has gone."""
    content = b"as asked\n"
    if os.path.isfile(path):
        with open(path, "rb") as file:
            content = file.read()
    handler.send_response(answer.get("status", 200))
    for name, value in answer.get("headers", {}).items():
        handler.send_header(name, value)
    handler.send_header("Content-Length", str(len(content)))
    handler.end_headers()
    handler.wfile.write(content[: answer.get("bytes", len(content))])
    handler.wfile.flush()
    if answer.get("hang"):
        while handler.connection.recv(65536):
            pass
    handler.close_connection = True

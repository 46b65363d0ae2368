"""Answers of a web site that are not simply its file: a test puts PATH.answer, a JSON object, beside the file PATH.

    {"status": 302, "headers": {"Location": "http://..."}}    that status with these headers
    {"bytes": 1000}                                            announces the whole file, sends so much of it and closes
    {"bytes": 1000, "hang": true}                              ... and then says nothing more, without closing
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
    """Writes it to the client of a http.server handler; a hanging one returns when the client has gone."""
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

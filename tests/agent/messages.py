# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""A server on 127.0.0.1 that answers the agent's requests and keeps them."""

import http.server
import itertools
import json
import re
import threading

NUMBERS = itertools.count()
TOOL = re.compile(r"use-tool (\w+) (\{.*\})", re.DOTALL)


def texts(content):
    """The texts in a message's content, or in a request's system prompt."""
    if isinstance(content, str):
        return [content]
    return [part.get("text", "") for part in content if part.get("type") == "text"]


def results(content):
    """What the tools answered that a message tells of."""
    return [] if isinstance(content, str) else [part for part in content if part.get("type") == "tool_result"]


def reply_to(request):
    """One block of content. A new prompt "use-tool NAME {...}" makes the agent use a tool; anything else gets
    "pong"."""
    for message in reversed(request["messages"]):
        if message["role"] == "assistant" or results(message["content"]):
            break
        for text in texts(message["content"]):
            if found := TOOL.match(text):
                return {"type": "tool_use", "id": f"toolu_{next(NUMBERS)}", "name": found[1], "input": json.loads(found[2])}
    return {"type": "text", "text": "pong"}


def events(message, block):
    empty = {"tool_use": {"input": {}}, "text": {"text": ""}}[block["type"]]
    if block["type"] == "tool_use":
        delta = {"type": "input_json_delta", "partial_json": json.dumps(block["input"])}
    else:
        delta = {"type": "text_delta", "text": block["text"]}
    yield "message_start", {"message": {**message, "content": [], "stop_reason": None}}
    yield "content_block_start", {"index": 0, "content_block": {**block, **empty}}
    yield "content_block_delta", {"index": 0, "delta": delta}
    yield "content_block_stop", {"index": 0}
    yield "message_delta", {"delta": {"stop_reason": message["stop_reason"], "stop_sequence": None},
                            "usage": message["usage"]}
    yield "message_stop", {}


class Handler(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        body = self.rfile.read(int(self.headers.get("Content-Length", 0)))
        if self.path.split("?")[0] != "/v1/messages":
            self.server.others.append(self.path)
            return self.answer(404, "application/json", b"{}")
        request = json.loads(body)
        self.server.requests.append(request)
        block = reply_to(request)
        message = {"id": f"msg_{next(NUMBERS)}", "type": "message", "role": "assistant", "model": request["model"],
                   "content": [block], "stop_sequence": None,
                   "stop_reason": "tool_use" if block["type"] == "tool_use" else "end_turn",
                   "usage": {"input_tokens": 1, "output_tokens": 1}}
        if not request.get("stream"):
            return self.answer(200, "application/json", json.dumps(message).encode())
        stream = "".join(f"event: {name}\ndata: {json.dumps({'type': name, **data})}\n\n"
                         for name, data in events(message, block))
        return self.answer(200, "text/event-stream", stream.encode())

    def do_GET(self):
        self.server.others.append(self.path)
        self.answer(404, "application/json", b"{}")

    do_HEAD = do_GET

    def answer(self, status, kind, body):
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if self.command != "HEAD":
            self.wfile.write(body)

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    """Runs until the program ends."""

    daemon_threads = True

    def __init__(self):
        super().__init__(("127.0.0.1", 0), Handler)
        self.requests = []  # of /v1/messages, in the order of their arrival
        self.others = []  # the paths of any other requests
        threading.Thread(target=self.serve_forever, daemon=True).start()

    @property
    def url(self):
        return f"http://127.0.0.1:{self.server_address[1]}"

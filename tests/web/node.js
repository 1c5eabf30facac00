// node.js: Node's own fetch takes no file names; without it the loader reads the file.
delete globalThis.fetch;

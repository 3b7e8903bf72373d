// A source for a target that has only headers.

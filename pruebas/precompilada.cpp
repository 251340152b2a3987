// Nothing of its own: it carries the headers that the test programs share.

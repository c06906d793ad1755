// Keeps the floor a library until its first source.

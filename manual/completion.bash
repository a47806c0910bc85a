# bash completion for @program@, made from its help.

# Puts the files into COMPREPLY that begin as $1: folders, and files with one of the extensions $2.
_@function@_files() {
    local word=$1 extensions=$2 file
    case $word in
        \'* | \"*) word=${word:1} ;;
        *) word=${word//\\/} ;;
    esac
    compopt -o filenames 2>/dev/null
    while IFS= read -r file; do
        if [[ -d ${file/#\~\//$HOME/} ]]; then
            COMPREPLY+=("$file")
        elif [[ $extensions && $file == *.* && " $extensions " == *" ${file##*.} "* ]]; then
            COMPREPLY+=("$file")
        elif [[ $extensions && $file == *.* && " ${extensions^^} " == *" ${file##*.} "* ]]; then
            COMPREPLY+=("$file")
        fi
    done < <(compgen -f -- "$word")
}

# Completes $2 as a thing of the kind $1. What is not known here is any file: the shell's default.
_@function@_value() {
    case $1 in
        document) _@function@_files "$2" '@extensions@' ;;
        folder) _@function@_files "$2" '' ;;
        text) compopt +o default 2>/dev/null ;;
        *'|'*) mapfile -t COMPREPLY < <(compgen -W "${1//|/ }" -- "$2") ;;
    esac
}

# The options of the command $1.
_@function@_options() {
    case $1 in
@options@    esac
}

# What the value of the option $2 of the command $1 is; nothing if it has none.
_@function@_option() {
    case $1 in
@values@    esac
}

# The kinds of the words that the command $1 takes; fails for what is no command.
_@function@_words() {
    case $1 in
@words@        *) return 1 ;;
    esac
}

_@function@() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' kind='' count=0 options=yes given i
    local -a kinds
    COMPREPLY=()
    # "--in=x" comes as three words.
    if [[ $word == = ]]; then
        word=''
    elif [[ $before == = ]] && ((COMP_CWORD > 1)); then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    for ((i = 1; i < COMP_CWORD; i++)); do
        given=${COMP_WORDS[i]}
        if [[ $given == -- && $options ]]; then
            options=''
        elif [[ $options && $given == -* ]]; then
            if [[ ${COMP_WORDS[i + 1]-} == = ]]; then
                ((i += 2))
            elif [[ $(_@function@_option "$command" "$given") ]]; then
                ((i += 1))
            fi
        elif ((i == 1)) && _@function@_words "$given" >/dev/null; then
            command=$given
        else
            ((count += 1))
        fi
    done
    if [[ $options && $before == -* ]]; then
        kind=$(_@function@_option "$command" "$before")
        if [[ $kind ]]; then
            _@function@_value "$kind" "$word"
            return
        fi
    fi
    if [[ $options && $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_@function@_options "$command")" -- "$word")
        return
    fi
    read -r -a kinds < <(_@function@_words "$command")
    # The last kind stands for all further words if it may be repeated.
    if ((count < ${#kinds[@]})); then
        kind=${kinds[count]}
    elif ((${#kinds[@]} > 0)) && [[ ${kinds[-1]} == *+ ]]; then
        kind=${kinds[-1]}
    else
        kind=text
    fi
    _@function@_value "${kind%+}" "$word"
    if ((COMP_CWORD == 1)); then
        mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W '@commands@' -- "$word")
    fi
}
complete -o default -F _@function@ @program@
